#include "engine/text/words.h"

#include "engine/text/letters.h"

namespace {

bool separates(char16_t unit)
{
    return unit < 0x80 && !is_alphanumeric(unit);
}

/// Whether a word ends between the units at `at` - 1 and `at`.
bool is_boundary(std::u16string_view text, std::size_t at)
{
    const char16_t previous = text[at - 1], current = text[at];
    if (is_lower(previous) && is_upper(current))
        return true;
    if (is_upper(previous) && is_upper(current) && at + 1 < text.size() && is_lower(text[at + 1]))
        return true;
    return is_digit(previous) && !is_digit(current);
}

}

std::vector<std::u16string> split_words(std::u16string_view text)
{
    std::vector<std::u16string> words;
    std::u16string word;
    const auto end_word = [&] {
        if (!word.empty())
            words.push_back(std::move(word));
        word.clear();
    };
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (separates(text[at])) {
            end_word();
            continue;
        }
        if (!word.empty() && is_boundary(text, at))
            end_word();
        word += text[at];
    }
    end_word();
    return words;
}
