#include "engine/checksums/crc32.h"

#include "platform/byte_order.h"

namespace {

/// Table 0 advances the state by one byte; table k by one byte that k zero bytes follow. Sixteen of them take
/// sixteen bytes a step, which a processor works on side by side.
using Tables = std::array<std::array<std::uint32_t, 256>, 16>;

Tables make_tables()
{
    Tables tables{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t state = byte;
        for (int bit = 0; bit < 8; ++bit)
            state = (state >> 1) ^ ((state & 1) ? 0xEDB88320 : 0);
        tables[0][byte] = state;
    }
    for (std::size_t k = 1; k < tables.size(); ++k)
        for (std::size_t byte = 0; byte < 256; ++byte)
            tables[k][byte] = (tables[k - 1][byte] >> 8) ^ tables[0][tables[k - 1][byte] & 0xFF];
    return tables;
}

const Tables& tables()
{
    static const Tables built = make_tables();
    return built;
}

/// The part of the new state that four bytes contribute which `behind` more bytes of the step follow.
std::uint32_t fold(const Tables& table, std::uint32_t word, std::size_t behind)
{
    return table[behind + 3][word & 0xFF] ^ table[behind + 2][(word >> 8) & 0xFF] ^
           table[behind + 1][(word >> 16) & 0xFF] ^ table[behind][word >> 24];
}

}

void Crc32::update(std::span<const std::byte> bytes)
{
    const Tables& table = tables();
    for (; bytes.size() >= 16; bytes = bytes.subspan(16)) {
        const std::byte* at = bytes.data();
        state_ = fold(table, platform::load_little_endian<std::uint32_t>(at) ^ state_, 12) ^
                 fold(table, platform::load_little_endian<std::uint32_t>(at + 4), 8) ^
                 fold(table, platform::load_little_endian<std::uint32_t>(at + 8), 4) ^
                 fold(table, platform::load_little_endian<std::uint32_t>(at + 12), 0);
    }
    for (const std::byte byte : bytes)
        state_ = (state_ >> 8) ^ table[0][(state_ ^ static_cast<std::uint32_t>(byte)) & 0xFF];
}

std::array<std::byte, 4> Crc32::digest() const
{
    std::array<std::byte, 4> digest{};
    for (std::size_t i = 0; i < digest.size(); ++i)
        digest[i] = static_cast<std::byte>((~state_ >> (24 - 8 * i)) & 0xFF);
    return digest;
}
