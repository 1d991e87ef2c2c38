#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

/// A compiled regular expression (ECMAScript) that is searched in names without regard to the case of ASCII letters.
/// "." matches no line end; "^" and "$" match at the ends of the whole name alone. Immutable: may be shared, also by
/// threads.
class NameExpression
{
public:
    explicit NameExpression(std::u16string_view pattern);
    ~NameExpression();
    NameExpression(const NameExpression&) = delete;
    NameExpression& operator=(const NameExpression&) = delete;

    /// False when the pattern could not be compiled.
    bool is_valid() const { return compiled_ != nullptr; }

    /// Where an invalid pattern goes wrong, in UTF-16 units from its begin. Empty when it is too large as a whole,
    /// and for a valid one.
    std::optional<std::size_t> error_offset() const { return error_offset_; }

    /// False for an invalid expression, and when the search gives up because it would take too long, which depends on
    /// the pattern and the name alone.
    bool is_found_in(std::u16string_view name) const;

private:
    struct Compiled;
    std::unique_ptr<const Compiled> compiled_;
    std::optional<std::size_t> error_offset_;
};
