#pragma once

#include <string>
#include <string_view>

/// Text as metadata holds it.
namespace platform {

/// UTF-8, with or without a byte order mark; what is no UTF-8 counts as Latin-1.
std::u16string decode_bytes(std::string_view bytes);

/// Two bytes a unit, the low one first.
std::u16string decode_ucs2(std::string_view bytes);

/// Unit for unit, "?" for what is no ASCII.
std::string to_ascii(std::u16string_view text);
/// With the letters A to Z in lower case.
std::string lower_ascii(std::string text);

/// A property is a line or a paragraph, and what is longer was made to fill memory.
inline constexpr std::size_t longest_text = 32'767;

/// Cut at the first U+0000 and at the longest text's length, without blanks at its ends, lone surrogates as U+FFFD.
std::u16string tidy_text(std::u16string_view text);

}
