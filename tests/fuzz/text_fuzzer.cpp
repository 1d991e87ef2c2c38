#include "engine/commands/singular_name.h"
#include "engine/text/case_type.h"
#include "engine/text/letters.h"
#include "engine/text/utf.h"
#include "engine/text/words.h"
#include "fuzz_input.h"

#include <algorithm>

namespace {

void check_utf(std::string_view bytes)
{
    const std::u16string text = to_utf16(bytes);
    require(to_utf16(to_utf8(text)) == text, "well-formed text comes back");
}

void check_words(const std::u16string& text)
{
    std::u16string joined;
    for (const std::u16string& word : split_words(text)) {
        require(!word.empty(), "no empty word");
        joined += word;
    }
    std::u16string kept;
    std::ranges::copy_if(text, std::back_inserter(kept),
                         [](char16_t unit) { return unit >= 128 || is_ascii_letter(unit) || is_ascii_digit(unit); });
    require(joined == kept, "words are the text without separators");
}

void check_case_styles(const std::u16string& text)
{
    for (const auto& row : case_types) {
        std::u16string in_place = text;
        MVCaseTypeUtils::convert_in_place(row.value, in_place);
        require(MVCaseTypeUtils::convert(row.value, text) == in_place, "both ways give the same");
        // Styles that make words can find other ones in their own result: only ASCII letters change their case.
        if (row.value > CaseType::SentenceCase)
            continue;
        require(lower_cased(in_place) == lower_cased(text), "only the case changes");
        require(MVCaseTypeUtils::convert(row.value, in_place) == in_place, "a second time changes nothing");
    }
}

void check_singular(const std::u16string& text)
{
    const std::u16string singular = singular_name(text);
    std::size_t at = 0;
    for (const char16_t unit : text)
        if (at < singular.size() && singular[at] == unit)
            ++at;
        else
            require(to_lower(unit) == u's', "nothing but an s goes");
    require(at == singular.size(), "nothing comes");
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const FuzzInput input(data, size);
    check_utf(input.rest());
    check_words(input.text());
    check_case_styles(input.text());
    check_singular(input.text());
    return 0;
}
