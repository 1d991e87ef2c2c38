#pragma once

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>

namespace platform {

/// Writes all of `content`, however many calls that takes. False with errno set when one fails.
inline bool write_all(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t count = ::write(descriptor, content.data(), content.size());
        if (count < 0 && errno != EINTR)
            return false;
        content.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    return true;
}

}
