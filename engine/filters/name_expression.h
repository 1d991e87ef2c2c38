#pragma once

#include <memory>
#include <string_view>

/// A compiled regular expression (ECMAScript) that is searched in names without regard to the case of ASCII letters.
/// "." matches no line end; "^" and "$" match at the ends of the whole name alone. Immutable: may be shared.
class NameExpression
{
public:
    explicit NameExpression(std::u16string_view pattern);
    ~NameExpression();
    NameExpression(const NameExpression&) = delete;
    NameExpression& operator=(const NameExpression&) = delete;

    /// False when the pattern could not be compiled.
    bool is_valid() const { return compiled_ != nullptr; }

    /// False for an invalid expression, and when the search gives up because it would take too long.
    bool is_found_in(std::u16string_view name) const;

private:
    struct Compiled;
    std::unique_ptr<const Compiled> compiled_;
};
