#pragma once

#include <unistd.h>

#include <utility>

namespace platform {

/// Owns a file descriptor, or none (-1).
class Descriptor
{
public:
    Descriptor() = default;

    explicit Descriptor(int value) : value_(value) {}

    Descriptor(Descriptor&& other) noexcept : value_(other.release()) {}

    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(value_, other.value_);
        return *this;
    }

    ~Descriptor()
    {
        if (value_ >= 0)
            ::close(value_);
    }

    explicit operator bool() const { return value_ >= 0; }

    int get() const { return value_; }

    /// Hands the descriptor to the caller, who closes it.
    int release() { return std::exchange(value_, -1); }

private:
    int value_ = -1;
};

}
