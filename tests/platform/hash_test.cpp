#include "platform/hash.h"
#include "platform/random_id.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <string_view>
#include <thread>

using platform::HashAlgorithm;

namespace {

std::string digest(HashAlgorithm algorithm, std::string_view text, std::size_t chunk)
{
    const auto hash = platform::make_hash(algorithm);
    for (; !text.empty(); text.remove_prefix(std::min(chunk, text.size())))
        EXPECT_TRUE(hash->update(std::as_bytes(std::span(text.substr(0, chunk)))));
    std::string result;
    for (const std::byte byte : hash->finish()) {
        result += "0123456789abcdef"[std::to_integer<unsigned>(byte) >> 4];
        result += "0123456789abcdef"[std::to_integer<unsigned>(byte) & 15];
    }
    EXPECT_FALSE(hash->update({}));
    EXPECT_TRUE(hash->finish().empty());
    return result;
}

void check_known_digests()
{
    const std::string abc = "abc";
    for (const std::size_t chunk : {1u, 2u, 8u}) {
        EXPECT_EQ(digest(HashAlgorithm::Md5, abc, chunk), "900150983cd24fb0d6963f7d28e17f72");
        EXPECT_EQ(digest(HashAlgorithm::Sha1, abc, chunk), "a9993e364706816aba3e25717850c26c9cd0d89d");
        EXPECT_EQ(digest(HashAlgorithm::Sha256, abc, chunk),
                  "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
        EXPECT_EQ(digest(HashAlgorithm::Sha512, abc, chunk),
                  "ddaf35a193617abacc417349ae20413112e6fa4e89a97ea20a9eeee64b55d39a"
                  "2192992a274fc1a836ba3c23a3feebbd454d4423643ce80e2a9ac94fa54ca49f");
    }
}

TEST(Hash, KnownDigestsOnSeveralThreads)
{
    {
        const std::jthread first(check_known_digests), second(check_known_digests);
    }
    EXPECT_EQ(digest(HashAlgorithm::Md5, "", 1), "d41d8cd98f00b204e9800998ecf8427e");
    EXPECT_EQ(platform::make_hash(static_cast<HashAlgorithm>(4)), nullptr);
}

TEST(RandomId, DistinctWithVersionAndVariant)
{
    std::set<std::string> seen;
    for (int i = 0; i < 1000; ++i) {
        const platform::RandomId id = platform::make_random_id();
        EXPECT_EQ(id.data3 >> 12, 4);
        EXPECT_EQ(id.data4[0] >> 6, 2);
        std::string bytes(sizeof id, '\0');
        std::memcpy(bytes.data(), &id, sizeof id);
        EXPECT_TRUE(seen.insert(bytes).second);
    }
}

}
