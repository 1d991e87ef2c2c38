#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// CRC-32 of IEEE 802.3 (reflected polynomial 0xEDB88320), as used by gzip and zip.
class Crc32
{
public:
    void update(std::span<const std::byte> bytes);
    /// Most significant byte first.
    std::array<std::byte, 4> digest() const;

private:
    std::uint32_t state_ = 0xFFFFFFFF;
};
