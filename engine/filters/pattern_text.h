#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>

/// What is wrong with a pattern, in English, and where.
class PatternError : public std::runtime_error
{
public:
    PatternError(const char* reason, std::size_t at) : std::runtime_error(reason), at_(at) {}

    /// Offset in the pattern, in UTF-16 units.
    std::size_t at() const { return at_; }

private:
    std::size_t at_;
};

/// A pattern that is read from its begin to its end. Must not outlive the text.
class PatternText
{
public:
    explicit PatternText(std::u16string_view text) : text_(text) {}

    /// Units read so far.
    std::size_t at() const { return at_; }

    std::u16string_view rest() const { return text_.substr(at_); }

    /// Takes one unit. Throws PatternError at the end.
    char16_t next()
    {
        if (at_ == text_.size())
            throw PatternError("something is missing at the end", at_);
        return text_[at_++];
    }

    /// Takes `expected` if it comes next.
    bool skip(std::u16string_view expected)
    {
        if (!rest().starts_with(expected))
            return false;
        at_ += expected.size();
        return true;
    }

private:
    std::u16string_view text_;
    std::size_t at_ = 0;
};
