#include "engine/checksums/crc32.h"
#include "engine/checksums/file_checksum.h"
#include "engine/checksums/xxhash64.h"
#include "engine/text/utf.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

std::string digest(std::u16string_view path, ChecksumType type, const CancelTest& cancelled = {})
{
    return to_utf8(file_checksum(path, type, cancelled));
}

TEST(FileChecksum, GivesTheWellKnownDigests)
{
    const TempFolder folder;
    const auto empty = folder.write("empty"), digits = folder.write("digits", "123456789");
    const std::vector<std::tuple<ChecksumType, std::string, std::string>> cases{
        {ChecksumType::Md5, "d41d8cd98f00b204e9800998ecf8427e", "25f9e794323b453885f5181f1b624d0b"},
        {ChecksumType::Sha1, "da39a3ee5e6b4b0d3255bfef95601890afd80709", "f7c3bc1d808e04732adf679965ccc34ca7ae3441"},
        {ChecksumType::Sha256, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855",
         "15e2b0d3c33891ebb0f1ef609ec419420c20e320ce94c65fbc8c3312448eb225"},
        {ChecksumType::Crc32, "00000000", "cbf43926"},
        {ChecksumType::XxHash64, "ef46db3751d8e999", "8cb841db40e6ae83"},
    };
    for (const auto& [type, of_nothing, of_digits] : cases) {
        EXPECT_EQ(digest(empty, type), of_nothing);
        EXPECT_EQ(digest(digits, type), of_digits);
    }
    EXPECT_EQ(digest(digits, ChecksumType::Sha512).size(), 128u);
    EXPECT_EQ(digest(digits, ChecksumType(6)), "");
}

/// Any way of cutting the input gives the digest of the whole.
template <typename Hash>
void expect_cuts_dont_matter(std::size_t size)
{
    std::vector<std::byte> bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<std::byte>(i * 7 + i / 251);
    Hash whole;
    whole.update(bytes);
    for (const unsigned step : {1u, 3u, 31u, 32u, 33u, 100u}) {
        Hash cut;
        for (std::size_t at = 0; at < size; at += step)
            cut.update(std::span(bytes).subspan(at, std::min<std::size_t>(step, size - at)));
        EXPECT_EQ(cut.digest(), whole.digest()) << size << " in steps of " << step;
    }
}

TEST(StreamingHashes, DontDependOnTheChunks)
{
    for (const unsigned size : {0u, 1u, 15u, 16u, 17u, 31u, 32u, 33u, 63u, 64u, 65u, 1000u}) {
        expect_cuts_dont_matter<Crc32>(size);
        expect_cuts_dont_matter<XxHash64>(size);
    }
}

TEST(FileChecksum, LongFilesMatchOtherPrograms)
{
    const TempFolder folder;
    std::string content;
    for (int i = 0; i < 200'000; ++i)
        content += static_cast<char>(i % 251);
    const auto path = folder.write("long", content);
    EXPECT_EQ(digest(path, ChecksumType::Crc32), "a745c145");
    EXPECT_EQ(digest(path, ChecksumType::XxHash64), "3c72c119d42ed27f");
    EXPECT_EQ(digest(path, ChecksumType::Md5), "415d6e662118c229c6ad3f950c24702a");
}

TEST(FileChecksum, StopsWhenToldAndAsksOnceAChunk)
{
    const TempFolder folder;
    const auto path = folder.write("long", std::string(3 * 65'536 + 1, 'x'));
    int asked = 0;
    EXPECT_NE(digest(path, ChecksumType::Sha1, [&] { return ++asked > 4; }), "");
    EXPECT_EQ(asked, 4);
    EXPECT_EQ(digest(path, ChecksumType::Crc32, [&] { return ++asked > 6; }), "");
}

TEST(FileChecksum, WhatIsNoReadableFileHasNone)
{
    const TempFolder folder;
    folder.make_folder("sub");
    folder.make_link("to-fifo", "fifo");
    folder.make_link("dangling", "nowhere");
    ASSERT_EQ(mkfifo(folder.host("fifo").c_str(), 0600), 0);
    for (const char* name : {"sub", "fifo", "to-fifo", "dangling", "nothing"})
        for (const ChecksumType type : all_checksum_types())
            EXPECT_EQ(digest(folder.path(name), type), "") << name;
    folder.write("file", "123456789");
    folder.make_link("to-file", "file");
    EXPECT_EQ(digest(folder.path("to-file"), ChecksumType::Crc32), "cbf43926");
}

TEST(UpperCaseHex, ChangesNothingButDigits)
{
    EXPECT_EQ(upper_case_hex(u"09afgz\u00E9"), u"09AFgz\u00E9");
    EXPECT_EQ(checksum_display_name(ChecksumType::Sha256), "SHA-256");
    EXPECT_EQ(checksum_display_name(ChecksumType(-1)), "");
}

}
