#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// Numbers as files hold them.
namespace platform {

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

/// The number that all of `bytes` hold, eight at the most, least significant byte first; 0 for none.
inline std::uint64_t little_endian(std::string_view bytes)
{
    std::array<std::byte, sizeof(std::uint64_t)> padded{};
    std::ranges::copy(std::as_bytes(std::span(bytes.substr(0, padded.size()))), padded.begin());
    return load_little_endian<std::uint64_t>(padded.data());
}

/// The same, most significant byte first.
inline std::uint64_t big_endian(std::string_view bytes)
{
    std::array<std::byte, sizeof(std::uint64_t)> padded{};
    std::ranges::reverse_copy(std::as_bytes(std::span(bytes.substr(0, padded.size()))), padded.begin());
    return load_little_endian<std::uint64_t>(padded.data());
}

}
