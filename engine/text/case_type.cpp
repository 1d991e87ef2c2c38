#include "engine/text/case_type.h"

#include "engine/text/letters.h"
#include "engine/text/title_case.h"
#include "engine/text/words.h"

#include <algorithm>

namespace {

/// The first letter in upper case, all else in lower case.
std::u16string capitalised(std::u16string_view text)
{
    std::u16string word = lower_cased(text);
    if (const auto letter = std::ranges::find_if(word, is_letter); letter != word.end())
        *letter = to_upper(*letter);
    return word;
}

template <typename Change>
std::u16string joined_words(std::u16string_view text, std::u16string_view joint, Change change)
{
    std::u16string result;
    std::size_t index = 0;
    for (const std::u16string& word : split_words(text)) {
        if (index > 0)
            result += joint;
        result += change(word, index++);
    }
    return result;
}

}

std::u16string MVCaseTypeUtils::convert(CaseType type, std::u16string_view text)
{
    const auto to_upper_word = [](std::u16string_view word, std::size_t) { return upper_cased(word); };
    const auto to_lower_word = [](std::u16string_view word, std::size_t) { return lower_cased(word); };
    switch (type) {
    case CaseType::Unchanged: break;
    case CaseType::UpperCase: return upper_cased(text);
    case CaseType::LowerCase: return lower_cased(text);
    case CaseType::TitleCase: return title_case(text);
    case CaseType::SentenceCase: return sentence_case(text);
    case CaseType::CamelCase:
        return joined_words(text, u"", [](std::u16string_view word, std::size_t index) {
            return index == 0 ? lower_cased(word) : capitalised(word);
        });
    case CaseType::PascalCase:
        return joined_words(text, u"", [](std::u16string_view word, std::size_t) { return capitalised(word); });
    case CaseType::SnakeCase: return joined_words(text, u"_", to_lower_word);
    case CaseType::SnakeCaseUpper: return joined_words(text, u"_", to_upper_word);
    case CaseType::KebabCase: return joined_words(text, u"-", to_lower_word);
    case CaseType::KebabCaseUpper: return joined_words(text, u"-", to_upper_word);
    }
    return std::u16string(text);
}

void MVCaseTypeUtils::convert_in_place(CaseType type, std::u16string& text)
{
    if (type != CaseType::Unchanged)
        text = convert(type, text);
}

std::string_view MVCaseTypeUtils::to_string(CaseType type)
{
    return row_or_first(case_types, type).json;
}

CaseType MVCaseTypeUtils::from_string(std::string_view string)
{
    return value_or(case_types, string, CaseType::Unchanged);
}
