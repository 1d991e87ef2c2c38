#include "common/printable.h"

#include "engine/text/utf.h"

#include <algorithm>

bool controls_terminal(char16_t unit)
{
    const bool is_control = unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
    const bool is_separator_or_direction = (unit >= 0x2028 && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
    return is_control || is_separator_or_direction;
}

std::string printable(std::string_view utf8)
{
    std::u16string text = to_utf16(utf8);
    std::ranges::replace_if(text, controls_terminal, u'?');
    return to_utf8(text);
}
