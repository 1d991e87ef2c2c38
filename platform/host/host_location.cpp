#include "platform/host/host_location.h"

#include "platform/paths.h"

#include <fcntl.h>

#include <cerrno>
#include <climits>

namespace platform {

HostLocation::HostLocation(std::u16string_view path) : HostLocation(to_host_path(path)) {}

HostLocation::HostLocation(std::string host_path) : path_(std::move(host_path))
{
    if (path_.empty())
        fail(ENOENT);
    while (path_.size() - start_ >= PATH_MAX && enter_piece()) {
    }
}

int HostLocation::folder() const
{
    return folder_ ? folder_.get() : AT_FDCWD;
}

Descriptor HostLocation::open(int flags, mode_t mode) const
{
    if (error_ != 0) {
        errno = error_;
        return Descriptor();
    }
    return Descriptor(openat(folder(), name(), flags | O_CLOEXEC, mode));
}

bool HostLocation::enter_piece()
{
    const std::size_t cut = path_.rfind('/', start_ + PATH_MAX - 1);
    if (cut == std::string::npos || cut <= start_)
        return fail(ENAMETOOLONG);
    path_[cut] = '\0';
    Descriptor next(openat(folder(), name(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!next)
        return fail(errno);
    folder_ = std::move(next);
    start_ = path_.find_first_not_of('/', cut + 1);
    if (start_ == std::string::npos) {
        path_.assign(1, '.');
        start_ = 0;
    }
    return true;
}

bool HostLocation::fail(int error)
{
    error_ = error;
    path_.clear();
    start_ = 0;
    return false;
}

}
