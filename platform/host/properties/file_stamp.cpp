#include "platform/host/properties/file_stamp.h"

#include "platform/host/host_location.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>

namespace platform {

namespace {

constexpr std::int64_t nanoseconds_per_second = 1'000'000'000;

std::int64_t nanoseconds(const timespec& time)
{
    return time.tv_sec * nanoseconds_per_second + time.tv_nsec;
}

FileStamp::Entry entry_of(const struct stat& info)
{
    return {info.st_dev, info.st_ino, static_cast<std::uint64_t>(info.st_size), nanoseconds(info.st_mtim),
            nanoseconds(info.st_ctim)};
}

std::int64_t now()
{
    using namespace std::chrono;
    return duration_cast<std::chrono::nanoseconds>(system_clock::now().time_since_epoch()).count();
}

}

std::optional<FileStamp> file_stamp(std::u16string_view path)
{
    const HostLocation location(path);
    struct stat own;
    struct stat target;
    if (fstatat(location.folder(), location.name(), &own, AT_SYMLINK_NOFOLLOW) != 0)
        return {};
    target = own;
    if (S_ISLNK(own.st_mode) && fstatat(location.folder(), location.name(), &target, 0) != 0)
        return {};
    FileStamp stamp{entry_of(own), entry_of(target)};
    constexpr std::int64_t coarsest_step = 2 * nanoseconds_per_second;
    stamp.is_settled = std::max(stamp.own.changed, stamp.target.changed) < now() - coarsest_step;
    return stamp;
}

}
