#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

/// The number that `sizeof(Word)` bytes hold, least significant byte first.
template <typename Word>
Word load_little_endian(const std::byte* bytes)
{
    std::array<std::byte, sizeof(Word)> copy;
    std::copy_n(bytes, copy.size(), copy.begin());
    if constexpr (std::endian::native == std::endian::big)
        std::ranges::reverse(copy);
    return std::bit_cast<Word>(copy);
}
