#include "platform/files.h"

#include "platform/host/opened_file.h"
#include "platform/host/write_all.h"
#include "platform/paths.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr mode_t new_bits = 0600, owner_bits = 0700, other_bits = 0007;

/// Where the file has an access list, the group's bits are what anyone in that list may have at the most.
bool has_access_list(int file)
{
    return fgetxattr(file, "system.posix_acl_access", nullptr, 0) > 0;
}

/// The bits that let nobody read the copy who might not read the original: in another group are people who were
/// others there, and among the others those who were in the group.
mode_t bits_for(const struct stat& copy, int original, const struct stat& info)
{
    const mode_t bits = info.st_mode & ACCESSPERMS;
    if (has_access_list(original))
        return bits & owner_bits;
    return copy.st_gid == info.st_gid ? bits : (bits & owner_bits) | (bits & (bits >> 3) & other_bits);
}

bool take_over_rights(int copy, int original)
{
    struct stat info, own;
    if (fstat(original, &info) != 0)
        return false;
    if (fchown(copy, info.st_uid, info.st_gid) != 0) [[maybe_unused]]
        const int is_allowed = fchown(copy, static_cast<uid_t>(-1), info.st_gid);
    return fstat(copy, &own) == 0 && fchmod(copy, bits_for(own, original, info)) == 0;
}

bool copy_to(const HostLocation& place, std::string_view content, int original)
{
    Descriptor copy = place.open(O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_NOCTTY, new_bits);
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
    std::string error;
    const Descriptor original = open_file(from, error);
    if (!original)
        return false;
    const auto content = read_opened(original, error);
    return content && copy_to(to, *content, original.get());
}

void remove_file(std::u16string_view path)
{
    const HostLocation location(to_host_path(path));
    unlinkat(location.folder(), location.name(), 0);
}

}
