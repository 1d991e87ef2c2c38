#include "platform/files.h"

#include "platform/host/host_location.h"
#include "platform/host/write_all.h"
#include "platform/paths.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr mode_t owner_bits = 0600, other_bits = 0707;

/// Lets nobody read the copy who might not read the original: with another group the group's rights would be other
/// people's.
bool take_over_rights(int copy, const struct stat& original)
{
    if (fchown(copy, original.st_uid, original.st_gid) != 0) [[maybe_unused]]
        const int is_allowed = fchown(copy, static_cast<uid_t>(-1), original.st_gid);
    struct stat own;
    if (fstat(copy, &own) != 0)
        return false;
    const mode_t bits = original.st_mode & ACCESSPERMS;
    return fchmod(copy, own.st_gid == original.st_gid ? bits : bits & other_bits) == 0;
}

bool copy_to(const HostLocation& place, std::string_view content, const struct stat& original)
{
    Descriptor copy = place.open(O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_NOCTTY, owner_bits);
    if (!copy)
        return false;
    const bool is_written = write_all(copy.get(), content) && fsync(copy.get()) == 0 &&
                            take_over_rights(copy.get(), original) && close(copy.release()) == 0;
    if (!is_written)
        unlinkat(place.folder(), place.name(), 0);
    return is_written;
}

}

bool keep_as(std::u16string_view path, std::u16string_view other)
{
    const HostLocation from(to_host_path(path));
    const HostLocation to(to_host_path(other));
    // A second name takes no reading, so that it can be had of a file that the disk fails to read.
    if (linkat(from.folder(), from.name(), to.folder(), to.name(), AT_SYMLINK_FOLLOW) == 0)
        return true;
    struct stat original;
    if (fstatat(from.folder(), from.name(), &original, 0) != 0)
        return false;
    std::string error;
    const auto content = read_file(path, error);
    return content && copy_to(to, *content, original);
}

void remove_file(std::u16string_view path)
{
    const HostLocation location(to_host_path(path));
    unlinkat(location.folder(), location.name(), 0);
}

}
