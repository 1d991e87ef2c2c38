#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The words that an identifier is made of, in order, none of them empty. ASCII punctuation separates words and is
/// dropped; a new word also starts at an upper-case letter behind a lower-case one, at the last upper-case letter of
/// a run that a lower-case letter follows ("XMLFile": "XML", "File"), and behind a digit at what is no digit. Units
/// from 128 on always belong to a word.
std::vector<std::u16string> split_words(std::u16string_view text);
