#include "engine/filters/name_expression.h"

#include "engine/filters/counting_iterator.h"
#include "engine/filters/ecmascript_pattern.h"
#include "engine/text/letters.h"

#include <boost/regex.hpp>

#include <string>

struct NameExpression::Compiled {
    boost::wregex expression;
    std::int64_t looks = 0;
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
        compiled->looks = looks_for(pattern);
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
    const std::wstring text = widened(name);
    // The library's own limit is on states, of which a pattern with many repeats makes too few, each taking too long.
    SearchBudget budget(compiled_->looks);
    const CountingIterator begin(text.data(), budget), end(text.data() + text.size(), budget);
    try {
        boost::match_results<CountingIterator> where;
        return boost::regex_search(begin, end, where, compiled_->expression,
                                   boost::match_not_dot_newline | boost::match_single_line);
    } catch (const std::exception&) {
        // Thrown for a search without end in sight.
        return false;
    }
}
