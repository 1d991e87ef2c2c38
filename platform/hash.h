#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace platform {

/// The hashes that the machine's cryptography library provides.
enum class HashAlgorithm { Md5, Sha1, Sha256, Sha512 };

/// One streaming hash: any number of updates, then one finish. One object serves one thread.
class StreamHash
{
public:
    virtual ~StreamHash() = default;
    /// False when the library failed; the hash is then of no use.
    virtual bool update(std::span<const std::byte> bytes) = 0;
    /// The digest in its standard byte order (RFC 1321, FIPS 180-4); empty when the library failed or at a second
    /// call.
    virtual std::vector<std::byte> finish() = 0;
};

/// Null when the library does not provide the algorithm.
std::unique_ptr<StreamHash> make_hash(HashAlgorithm algorithm);

}
