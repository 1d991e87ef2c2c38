#include "engine/filters/name_expression.h"

#include "engine/filters/ecmascript_pattern.h"
#include "engine/text/letters.h"

#include <boost/regex.hpp>

#include <string>

struct NameExpression::Compiled {
    boost::wregex expression;
};

namespace {

std::wstring widened(std::u16string_view text)
{
    return {text.begin(), text.end()};
}

}

NameExpression::NameExpression(std::u16string_view pattern)
{
    try {
        auto compiled = std::make_unique<Compiled>();
        compiled->expression.imbue(letters_locale());
        compiled->expression.assign(from_ecmascript(pattern), boost::regex::perl | boost::regex::icase);
        compiled_ = std::move(compiled);
    } catch (const std::exception&) {
        // What can't be compiled is an invalid expression, whatever the library's reason.
        compiled_ = nullptr;
    }
}

NameExpression::~NameExpression() = default;

bool NameExpression::is_found_in(std::u16string_view name) const
{
    if (!compiled_)
        return false;
    try {
        return boost::regex_search(widened(name), compiled_->expression,
                                   boost::match_not_dot_newline | boost::match_single_line);
    } catch (const std::exception&) {
        // Thrown for a search without end in sight.
        return false;
    }
}
