#include "engine/text/title_case.h"

#include "engine/text/letters.h"

#include <algorithm>
#include <unordered_set>

namespace {

bool is_minor_word(const std::u16string& lower_word)
{
    static const std::unordered_set<std::u16string> words{
        u"a",  u"an", u"the", u"and", u"but", u"or", u"nor", u"for", u"yet", u"so",  u"at",
        u"by", u"in", u"of",  u"on",  u"to",  u"up", u"as",  u"if",  u"off", u"per", u"via"};
    return words.contains(lower_word);
}

std::u16string titled(std::u16string_view word, bool always_capital)
{
    std::u16string result = lower_cased(word);
    if (always_capital || !is_minor_word(result))
        result.front() = to_upper(result.front());
    return result;
}

}

std::u16string title_case(std::u16string_view text)
{
    std::u16string result;
    result.reserve(text.size());
    const auto last_letter = std::find_if(text.rbegin(), text.rend(), is_letter).base();
    bool is_first = true;
    for (auto at = text.begin(); at != text.end();) {
        if (!is_letter(*at)) {
            result += *at++;
            continue;
        }
        const auto end = std::find_if_not(at, text.end(), is_letter);
        result += titled({at, end}, is_first || end == last_letter);
        is_first = false;
        at = end;
    }
    return result;
}

std::u16string sentence_case(std::u16string_view text)
{
    std::u16string result;
    result.reserve(text.size());
    bool starts_sentence = true;
    for (const char16_t unit : text) {
        if (!is_letter(unit)) {
            result += unit;
            starts_sentence = starts_sentence || unit == u'.' || unit == u'!' || unit == u'?';
            continue;
        }
        result += starts_sentence ? to_upper(unit) : to_lower(unit);
        starts_sentence = false;
    }
    return result;
}
