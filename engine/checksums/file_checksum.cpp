#include "engine/checksums/file_checksum.h"

#include "engine/checksums/crc32.h"
#include "engine/checksums/xxhash64.h"
#include "engine/items/long_path.h"
#include "platform/file_reader.h"
#include "platform/hash.h"

#include <memory>
#include <vector>

namespace {

constexpr std::size_t chunk_size = 65'536;

std::u16string to_hex(std::span<const std::byte> digest)
{
    static constexpr std::u16string_view digits = u"0123456789abcdef";
    std::u16string hex;
    hex.reserve(digest.size() * 2);
    for (const std::byte byte : digest) {
        hex += digits[static_cast<std::size_t>(byte >> 4)];
        hex += digits[static_cast<std::size_t>(byte & std::byte{15})];
    }
    return hex;
}

/// Feeds the whole file to `update`, which returns whether to go on. False when anything stopped it before the end.
template <typename Update>
bool stream_file(std::u16string_view path, const CancelTest& cancelled, Update update)
{
    platform::FileReader file(add_long_path_prefix(path));
    if (!file.is_open())
        return false;
    const auto buffer = std::make_unique_for_overwrite<std::byte[]>(chunk_size);
    const std::span<std::byte> chunk(buffer.get(), chunk_size);
    for (;;) {
        const std::size_t got = file.read(chunk);
        if (got == 0)
            return true;
        if (cancelled && cancelled())
            return false;
        if (!update(chunk.first(got)))
            return false;
        if (got < chunk.size())
            return true;
    }
}

std::u16string machine_checksum(std::u16string_view path, platform::HashAlgorithm algorithm,
                                const CancelTest& cancelled)
{
    const auto hash = platform::make_hash(algorithm);
    if (!hash || !stream_file(path, cancelled, [&](auto bytes) { return hash->update(bytes); }))
        return {};
    return to_hex(hash->finish());
}

template <typename Hash>
std::u16string own_checksum(std::u16string_view path, const CancelTest& cancelled)
{
    Hash hash;
    const auto update = [&](std::span<const std::byte> bytes) {
        hash.update(bytes);
        return true;
    };
    return stream_file(path, cancelled, update) ? to_hex(hash.digest()) : std::u16string();
}

}

std::u16string file_checksum(std::u16string_view path, ChecksumType type, const CancelTest& cancelled)
{
    switch (type) {
    case ChecksumType::Md5: return machine_checksum(path, platform::HashAlgorithm::Md5, cancelled);
    case ChecksumType::Sha1: return machine_checksum(path, platform::HashAlgorithm::Sha1, cancelled);
    case ChecksumType::Sha256: return machine_checksum(path, platform::HashAlgorithm::Sha256, cancelled);
    case ChecksumType::Sha512: return machine_checksum(path, platform::HashAlgorithm::Sha512, cancelled);
    case ChecksumType::Crc32: return own_checksum<Crc32>(path, cancelled);
    case ChecksumType::XxHash64: return own_checksum<XxHash64>(path, cancelled);
    }
    return {};
}
