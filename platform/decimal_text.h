#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <string>

namespace platform {

/// ASCII digits of a number, with leading zeros up to `width` of them.
inline std::u16string decimal_text(unsigned long long number, std::size_t width = 1)
{
    std::array<char, 20> digits;
    const auto* const end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    const auto length = static_cast<std::size_t>(end - digits.begin());
    std::u16string text(width > length ? width - length : 0, u'0');
    return text.append(digits.begin(), digits.begin() + length);
}

}
