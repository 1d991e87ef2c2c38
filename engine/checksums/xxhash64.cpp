#include "engine/checksums/xxhash64.h"

#include "platform/byte_order.h"

#include <algorithm>
#include <bit>

namespace {

constexpr std::uint64_t prime1 = 0x9E3779B185EBCA87, prime2 = 0xC2B2AE3D27D4EB4F, prime3 = 0x165667B19E3779F9,
                        prime4 = 0x85EBCA77C2B2AE63, prime5 = 0x27D4EB2F165667C5;
constexpr std::size_t stripe_size = 32;

constexpr std::uint64_t round(std::uint64_t lane, std::uint64_t input)
{
    return std::rotl(lane + input * prime2, 31) * prime1;
}

constexpr std::uint64_t merged(std::uint64_t hash, std::uint64_t lane)
{
    return (hash ^ round(0, lane)) * prime1 + prime4;
}

constexpr std::uint64_t avalanche(std::uint64_t hash)
{
    hash = (hash ^ (hash >> 33)) * prime2;
    hash = (hash ^ (hash >> 29)) * prime3;
    return hash ^ (hash >> 32);
}

}

void XxHash64::consume(const std::byte* stripes, std::size_t count)
{
    auto [a, b, c, d] = lanes_;
    for (; count > 0; --count, stripes += stripe_size) {
        a = round(a, platform::load_little_endian<std::uint64_t>(stripes));
        b = round(b, platform::load_little_endian<std::uint64_t>(stripes + 8));
        c = round(c, platform::load_little_endian<std::uint64_t>(stripes + 16));
        d = round(d, platform::load_little_endian<std::uint64_t>(stripes + 24));
    }
    lanes_ = {a, b, c, d};
}

void XxHash64::update(std::span<const std::byte> bytes)
{
    total_ += bytes.size();
    if (tail_size_ > 0) {
        const std::size_t taken = std::min(bytes.size(), stripe_size - tail_size_);
        std::copy_n(bytes.begin(), taken, tail_.begin() + static_cast<std::ptrdiff_t>(tail_size_));
        tail_size_ += taken;
        bytes = bytes.subspan(taken);
        if (tail_size_ < stripe_size)
            return;
        consume(tail_.data(), 1);
        tail_size_ = 0;
    }
    const std::size_t stripes = bytes.size() / stripe_size;
    consume(bytes.data(), stripes);
    bytes = bytes.subspan(stripes * stripe_size);
    std::ranges::copy(bytes, tail_.begin());
    tail_size_ = bytes.size();
}

std::uint64_t XxHash64::tail_mixed(std::uint64_t hash) const
{
    const std::byte* at = tail_.data();
    std::size_t left = tail_size_;
    for (; left >= 8; at += 8, left -= 8)
        hash = std::rotl(hash ^ round(0, platform::load_little_endian<std::uint64_t>(at)), 27) * prime1 + prime4;
    if (left >= 4) {
        hash = std::rotl(hash ^ (platform::load_little_endian<std::uint32_t>(at) * prime1), 23) * prime2 + prime3;
        at += 4;
        left -= 4;
    }
    for (; left > 0; ++at, --left)
        hash = std::rotl(hash ^ (static_cast<std::uint64_t>(*at) * prime5), 11) * prime1;
    return hash;
}

std::array<std::byte, 8> XxHash64::digest() const
{
    std::uint64_t hash = prime5;
    if (total_ >= stripe_size) {
        hash =
            std::rotl(lanes_[0], 1) + std::rotl(lanes_[1], 7) + std::rotl(lanes_[2], 12) + std::rotl(lanes_[3], 18);
        for (const std::uint64_t lane : lanes_)
            hash = merged(hash, lane);
    }
    hash = avalanche(tail_mixed(hash + total_));
    std::array<std::byte, 8> digest{};
    for (std::size_t i = 0; i < digest.size(); ++i)
        digest[i] = static_cast<std::byte>((hash >> (56 - 8 * i)) & 0xFF);
    return digest;
}
