#include "platform/hash.h"

#include <openssl/evp.h>

#include <array>

namespace platform {

namespace {

struct FreeAlgorithm {
    void operator()(EVP_MD* algorithm) const { EVP_MD_free(algorithm); }
};

struct FreeContext {
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

using Algorithm = std::unique_ptr<EVP_MD, FreeAlgorithm>;

class OpenSslHash final : public StreamHash
{
public:
    explicit OpenSslHash(const EVP_MD* algorithm)
        : context_(EVP_MD_CTX_new()), is_good_(context_ && EVP_DigestInit_ex(context_.get(), algorithm, nullptr) == 1)
    {}

    bool is_good() const { return is_good_; }

    bool update(std::span<const std::byte> bytes) override
    {
        is_good_ = is_good_ && EVP_DigestUpdate(context_.get(), bytes.data(), bytes.size()) == 1;
        return is_good_;
    }

    std::vector<std::byte> finish() override
    {
        std::array<unsigned char, EVP_MAX_MD_SIZE> digest;
        unsigned length = 0;
        const bool is_done = is_good_ && EVP_DigestFinal_ex(context_.get(), digest.data(), &length) == 1;
        is_good_ = false;
        const auto bytes = std::as_bytes(std::span(digest).first(is_done ? length : 0));
        return {bytes.begin(), bytes.end()};
    }

private:
    std::unique_ptr<EVP_MD_CTX, FreeContext> context_;
    bool is_good_;
};

/// Null when the library lacks it. Looked up once: a look-up takes a lock that all hashing threads share.
const EVP_MD* find_algorithm(HashAlgorithm algorithm)
{
    const auto fetch = [](const char* name) { return Algorithm(EVP_MD_fetch(nullptr, name, nullptr)); };
    static const std::array algorithms{fetch("MD5"), fetch("SHA1"), fetch("SHA256"), fetch("SHA512")};
    const auto index = static_cast<std::size_t>(algorithm);
    return index < algorithms.size() ? algorithms[index].get() : nullptr;
}

}

std::unique_ptr<StreamHash> make_hash(HashAlgorithm algorithm)
{
    const EVP_MD* found = find_algorithm(algorithm);
    auto hash = found ? std::make_unique<OpenSslHash>(found) : nullptr;
    return hash && hash->is_good() ? std::move(hash) : nullptr;
}

}
