#include "engine/commands/singular_name.h"

#include "engine/text/letters.h"

#include <algorithm>
#include <array>

namespace {

bool ends_in_countable_word(std::u16string_view text)
{
    static constexpr std::array<std::u16string_view, 4> words{u"name", u"path", u"file", u"folder"};
    return std::ranges::any_of(words, [&](std::u16string_view word) {
        return text.size() >= word.size() &&
               std::ranges::equal(text.substr(text.size() - word.size()), word, {}, to_lower);
    });
}

}

std::u16string singular_name(std::u16string_view name)
{
    std::u16string singular;
    for (std::size_t at = 0; at < name.size(); ++at) {
        const bool ends_word = at + 1 == name.size() || !is_letter(name[at + 1]);
        if (to_lower(name[at]) != u's' || !ends_word || !ends_in_countable_word(singular))
            singular += name[at];
    }
    return singular;
}
