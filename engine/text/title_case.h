#pragma once

#include <string>
#include <string_view>

/// Every run of letters is a word. The first and the last are capitalised, the minor words of English headlines
/// between them written in lower case, all others capitalised. What is no letter stays.
std::u16string title_case(std::u16string_view text);

/// Letters in lower case, but the first of the text and the first behind each ".", "!" or "?" in upper case.
std::u16string sentence_case(std::u16string_view text);
