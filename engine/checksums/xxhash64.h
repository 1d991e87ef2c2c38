#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// XXH64 with seed 0, by the algorithm's published description (xxHash fast digest algorithm, version 0.1.1).
class XxHash64
{
public:
    void update(std::span<const std::byte> bytes);
    /// The canonical form: most significant byte first.
    std::array<std::byte, 8> digest() const;

private:
    void consume(const std::byte* stripes, std::size_t count);
    std::uint64_t tail_mixed(std::uint64_t hash) const;

    /// Start values for seed 0: prime 1 + prime 2, prime 2, 0, minus prime 1.
    std::array<std::uint64_t, 4> lanes_{0x60EA27EEADC0B5D6, 0xC2B2AE3D27D4EB4F, 0, 0x61C8864E7A143579};
    std::array<std::byte, 32> tail_{};
    std::size_t tail_size_ = 0;
    std::uint64_t total_ = 0;
};
