#include "engine/filters/ecmascript_pattern.h"

#include "engine/text/letters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

namespace {

constexpr std::u16string_view known_letters = u"bBdDwWsSfnrtvcxk";

class Translation
{
public:
    explicit Translation(std::u16string_view pattern) : rest_(pattern) {}

    std::wstring run()
    {
        while (!rest_.empty())
            translate_next();
        return std::move(out_);
    }

private:
    char16_t front() const { return rest_.empty() ? u'\0' : rest_.front(); }

    void copy(std::size_t count)
    {
        out_.append(rest_.begin(), rest_.begin() + static_cast<std::ptrdiff_t>(std::min(count, rest_.size())));
        rest_.remove_prefix(std::min(count, rest_.size()));
    }

    /// Writes a unit that stands for itself, whatever it means elsewhere.
    void put_literal(unsigned unit)
    {
        std::array<char, 8> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), unit, 16).ptr;
        out_.append(L"\\x{").append(digits.data(), end).append(L"}");
    }

    void translate_next()
    {
        const char16_t unit = front();
        if (unit == u'\\') {
            translate_escape(false);
        } else if (unit == u'[') {
            translate_class();
        } else if (rest_.starts_with(u"(?")) {
            if (rest_.size() < 3 || std::u16string_view(u":=!").find(rest_[2]) == std::u16string_view::npos)
                throw std::invalid_argument("unknown group");
            copy(3);
        } else if (unit == u'*' || unit == u'+' || unit == u'?' || unit == u'{') {
            translate_repeat();
        } else {
            copy(1);
        }
    }

    void translate_repeat()
    {
        copy(front() == u'{' ? std::min(rest_.find(u'}'), rest_.size() - 1) + 1 : 1);
        if (front() == u'?')
            copy(1);
        if (front() == u'+')
            throw std::invalid_argument("a repeat can't be repeated");
    }

    void translate_escape(bool in_class)
    {
        if (rest_.size() < 2)
            throw std::invalid_argument("nothing behind the backslash");
        const char16_t unit = rest_[1];
        if (unit == u'u' || (unit == u'0' && (rest_.size() == 2 || !is_ascii_digit(rest_[2]))))
            return translate_code(unit == u'u');
        if (in_class && unit == u'b') {
            rest_.remove_prefix(2);
            return put_literal(8);
        }
        if (is_ascii_letter(unit) && known_letters.find(unit) == known_letters.npos)
            throw std::invalid_argument("unknown escape");
        if (is_ascii_letter(unit) || is_ascii_digit(unit))
            return copy(2);
        rest_.remove_prefix(2);
        put_literal(unit);
    }

    /// \0 and \uHHHH.
    void translate_code(bool has_digits)
    {
        rest_.remove_prefix(2);
        unsigned code = 0;
        for (int i = 0; has_digits && i < 4; ++i) {
            const std::u16string_view digits = u"0123456789abcdef";
            const std::size_t digit = digits.find(to_lower(front()));
            if (rest_.empty() || digit == digits.npos)
                throw std::invalid_argument("four hexadecimal digits expected");
            code = code * 16 + static_cast<unsigned>(digit);
            rest_.remove_prefix(1);
        }
        put_literal(code);
    }

    void translate_class()
    {
        if (rest_.starts_with(u"[]")) {
            rest_.remove_prefix(2);
            out_ += L"(?!)";
            return;
        }
        if (rest_.starts_with(u"[^]")) {
            rest_.remove_prefix(3);
            out_ += L"[\\s\\S]";
            return;
        }
        copy(rest_.starts_with(u"[^") ? 2 : 1);
        while (front() != u']') {
            if (rest_.empty())
                throw std::invalid_argument("the class has no end");
            translate_in_class();
        }
        copy(1);
    }

    void translate_in_class()
    {
        if (front() == u'\\')
            return translate_escape(true);
        const bool is_posix = rest_.starts_with(u"[:") || rest_.starts_with(u"[=") || rest_.starts_with(u"[.");
        const std::size_t end = is_posix ? rest_.find(u']', 2) : rest_.npos;
        copy(end == rest_.npos ? 1 : end + 1);
    }

    std::u16string_view rest_;
    std::wstring out_;
};

}

std::wstring from_ecmascript(std::u16string_view pattern)
{
    return Translation(pattern).run();
}
