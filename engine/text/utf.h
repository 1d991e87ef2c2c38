#pragma once

#include <string>
#include <string_view>

/// UTF-16 of a UTF-8 text. Each malformed sequence (RFC 3629) becomes one U+FFFD; never throws for bad input.
std::u16string to_utf16(std::string_view utf8);

/// UTF-8 of a UTF-16 text. A surrogate without its partner becomes U+FFFD.
std::string to_utf8(std::u16string_view text);

/// Appends `to_utf8(text)`.
void append_utf8(std::string& utf8, std::u16string_view text);
