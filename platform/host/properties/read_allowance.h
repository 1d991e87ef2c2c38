#pragma once

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace platform {

/// What one library may read of one file, and how long it may take. A read costs something too, so that a library
/// that runs in circles over a few bytes comes to its end.
class ReadAllowance
{
public:
    explicit ReadAllowance(std::chrono::milliseconds time) : deadline_(std::chrono::steady_clock::now() + time) {}

    bool is_left() const { return bytes_ > cost_of_read && std::chrono::steady_clock::now() < deadline_; }

    /// Copies up to `count` bytes from `offset`; 0 at the end, at a failure and when the allowance is used up.
    std::size_t read_at(int descriptor, std::uint64_t offset, char* out, std::size_t count)
    {
        if (!is_left())
            return 0;
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(count, bytes_ - cost_of_read));
        const ssize_t read = ::pread(descriptor, out, wanted, static_cast<off_t>(offset));
        const auto result = static_cast<std::size_t>(std::max<ssize_t>(read, 0));
        bytes_ -= result + cost_of_read;
        return result;
    }

private:
    static constexpr std::uint64_t cost_of_read = 256;

    /// Some libraries make seventy bytes of each that they read, and a program must not grow by more than 512 MB.
    std::uint64_t bytes_ = 13 << 19;
    std::chrono::steady_clock::time_point deadline_;
};

}
