#include "platform/host/entry_attributes.h"

#include "platform/host/host_location.h"
#include "platform/local_time.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

namespace platform {

namespace {

/// 100 ns since 1601 UTC; 0 for a moment before 1601 or too late for the count.
std::int64_t to_ticks(const statx_timestamp& time)
{
    std::int64_t ticks = 0;
    if (__builtin_add_overflow(time.tv_sec, seconds_1601_to_1970, &ticks) ||
        __builtin_mul_overflow(ticks, ticks_per_second, &ticks) ||
        __builtin_add_overflow(ticks, std::int64_t{time.tv_nsec / 100}, &ticks))
        return 0;
    return ticks < 0 ? 0 : ticks;
}

}

std::optional<FileAttributes> entry_attributes(int folder, const char* name)
{
    struct statx entry;
    if (statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, STATX_BASIC_STATS | STATX_BTIME, &entry) != 0)
        return {};
    FileAttributes result;
    result.modified = to_ticks(entry.stx_mtime);
    result.accessed = to_ticks(entry.stx_atime);
    if ((entry.stx_mask & STATX_BTIME) != 0)
        result.created = to_ticks(entry.stx_btime);
    result.is_link = S_ISLNK(entry.stx_mode);
    result.is_folder = result.is_link ? leads_to_folder(folder, name) : S_ISDIR(entry.stx_mode);
    if (!result.is_folder && !result.is_link)
        result.size = entry.stx_size;
    return result;
}

bool leads_to_folder(int folder, const char* name)
{
    struct stat target;
    return fstatat(folder, name, &target, 0) == 0 && S_ISDIR(target.st_mode);
}

std::optional<FileAttributes> file_attributes(std::u16string_view path)
{
    const HostLocation location(path);
    return entry_attributes(location.folder(), location.name());
}

bool exists(std::u16string_view path)
{
    const HostLocation location(path);
    struct stat target;
    return fstatat(location.folder(), location.name(), &target, 0) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

}
