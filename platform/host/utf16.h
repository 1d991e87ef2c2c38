#pragma once

namespace platform {

/// What stands for a backslash in a host name.
constexpr char16_t escaped_backslash = 0xF05C;

constexpr bool is_surrogate(char32_t code)
{
    return code >= 0xD800 && code <= 0xDFFF;
}

constexpr bool is_high_surrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool is_low_surrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

}
