#include "platform/files.h"

#include "platform/host/host_location.h"
#include "platform/paths.h"

#include <fcntl.h>
#include <unistd.h>

namespace platform {

bool keep_as(std::u16string_view path, std::u16string_view other)
{
    const HostLocation from(to_host_path(path));
    const HostLocation to(to_host_path(other));
    // A second name takes no reading, so that it can be had of a file that the disk fails to read.
    if (linkat(from.folder(), from.name(), to.folder(), to.name(), AT_SYMLINK_FOLLOW) == 0)
        return true;
    std::string error;
    const auto content = read_file(path, error);
    return content && write_file(other, *content);
}

void remove_file(std::u16string_view path)
{
    const HostLocation location(to_host_path(path));
    unlinkat(location.folder(), location.name(), 0);
}

}
