#pragma once

#include <cstddef>
#include <span>
#include <vector>

/// A message while it arrives. Beyond `limit` bytes what has come is only counted.
class IncomingMessage
{
public:
    explicit IncomingMessage(std::size_t limit) : limit_(limit) {}

    void append(std::span<const char> bytes)
    {
        size_ += bytes.size();
        if (is_too_large())
            std::vector<char>().swap(bytes_);
        else
            bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    }

    /// Of all that has come.
    std::size_t size() const { return size_; }

    bool is_too_large() const { return size_ > limit_; }

    /// Empty when it is too large.
    const std::vector<char>& bytes() const { return bytes_; }

private:
    std::size_t limit_;
    std::size_t size_ = 0;
    std::vector<char> bytes_;
};
