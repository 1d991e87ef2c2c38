#pragma once

#include "engine/text/enum_table.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

enum class ChecksumType : std::int32_t { Md5, Sha1, Sha256, Sha512, Crc32, XxHash64 };

struct ChecksumRow {
    ChecksumType value;
    std::string_view json;
    std::string_view display;
    std::size_t hex_digits;
};

inline constexpr std::array<ChecksumRow, 6> checksum_types{{
    {ChecksumType::Md5, "md5", "MD5", 32},
    {ChecksumType::Sha1, "sha1", "SHA-1", 40},
    {ChecksumType::Sha256, "sha256", "SHA-256", 64},
    {ChecksumType::Sha512, "sha512", "SHA-512", 128},
    {ChecksumType::Crc32, "crc32", "CRC32", 8},
    {ChecksumType::XxHash64, "xxhash64", "xxHash64", 16},
}};
static_assert(is_complete(checksum_types));

/// All types in table order.
std::span<const ChecksumType> all_checksum_types();

/// Empty for a value outside the table.
std::string_view checksum_display_name(ChecksumType type);

/// "a" to "f" in upper case; every other character stays.
std::u16string upper_case_hex(std::u16string_view hex);
