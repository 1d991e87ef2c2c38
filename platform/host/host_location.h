#pragma once

#include "platform/host/descriptor.h"

#include <sys/types.h>

#include <string>
#include <string_view>

namespace platform {

/// What the system calls with a folder's descriptor (openat and its like) need to find a path, however long: the
/// kernel takes less than PATH_MAX bytes at a time, so a longer path is entered piece by piece.
/// An unreachable path has an empty name, with which these calls fail.
class HostLocation
{
public:
    /// `path` in drive or server form.
    explicit HostLocation(std::u16string_view path);
    /// `host_path` is absolute; empty when it names nothing.
    explicit HostLocation(std::string host_path);

    /// AT_FDCWD for a path that one call can take.
    int folder() const;

    const char* name() const { return path_.c_str() + start_; }

    /// Opens the path, always with O_CLOEXEC. Without a descriptor errno has the reason, also when it is unreachable.
    Descriptor open(int flags, mode_t mode = 0) const;

private:
    std::string path_;
    std::size_t start_ = 0;
    Descriptor folder_;
    int error_ = 0;

    /// Opens the longest front piece that one call can take. False at a failure.
    bool enter_piece();
    bool fail(int error);
};

}
