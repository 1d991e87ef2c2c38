#pragma once

#include <string>
#include <string_view>

/// UTF-16 of a UTF-8 text. Of a malformed sequence (RFC 3629) each part that could have begun a
/// well-formed one becomes U+FFFD; never throws for bad input.
std::u16string to_utf16(std::string_view utf8);

/// UTF-8 of a UTF-16 text; takes three bytes a unit while it works. A surrogate without its partner becomes U+FFFD.
std::string to_utf8(std::u16string_view text);
