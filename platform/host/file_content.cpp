#include "platform/files.h"

#include "platform/host/host_location.h"
#include "platform/paths.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace platform {

namespace {

/// What is larger is no file of ours; a device or a sparse file could be endless.
constexpr std::size_t largest_file = std::size_t{2} << 30;

std::string words(int error)
{
    const char* text = strerrordesc_np(error);
    return text ? text : "Unknown error " + std::to_string(error);
}

/// Reads all that is left. False with errno set when a read fails.
bool read_rest(int descriptor, std::string& content)
{
    struct stat info;
    const bool has_size = fstat(descriptor, &info) == 0 && info.st_size > 0;
    if (has_size && static_cast<std::size_t>(info.st_size) > largest_file) {
        errno = EFBIG;
        return false;
    }
    content.resize(has_size ? static_cast<std::size_t>(info.st_size) + 1 : 65'536);
    for (std::size_t used = 0;;) {
        if (used > largest_file) {
            errno = EFBIG;
            return false;
        }
        if (used == content.size())
            content.resize(used * 2);
        const ssize_t count = ::read(descriptor, content.data() + used, content.size() - used);
        if (count < 0 && errno != EINTR)
            return false;
        used += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        if (count == 0) {
            content.resize(used);
            return true;
        }
    }
}

bool write_all(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t count = ::write(descriptor, content.data(), content.size());
        if (count < 0 && errno != EINTR)
            return false;
        content.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    return true;
}

/// Best effort: some file systems can't bring a folder to the disk, and the new name stands in any case.
void sync_parent_folder(const std::string& host_path)
{
    const std::string parent = host_path.substr(0, host_path.rfind('/') + 1);
    if (const Descriptor folder = HostLocation(parent).open(O_RDONLY | O_DIRECTORY))
        fsync(folder.get());
}

}

std::optional<std::string> read_file(std::u16string_view path, std::string& error)
{
    const Descriptor descriptor = HostLocation(path).open(O_RDONLY | O_NOCTTY);
    std::string content;
    if (descriptor && read_rest(descriptor.get(), content))
        return content;
    error = words(errno);
    return {};
}

bool write_file(std::u16string_view path, std::string_view content)
{
    // O_NONBLOCK: a fifo of that name must fail instead of waiting for a reader.
    Descriptor descriptor = HostLocation(path).open(O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_NOCTTY, 0666);
    const bool is_written = descriptor && write_all(descriptor.get(), content) && fsync(descriptor.get()) == 0;
    return descriptor && close(descriptor.release()) == 0 && is_written;
}

bool replace_file(std::u16string_view from, std::u16string_view to)
{
    const HostLocation source(from), target(to);
    if (renameat(source.folder(), source.name(), target.folder(), target.name()) != 0)
        return false;
    sync_parent_folder(to_host_path(to));
    return true;
}

void remove_file(std::u16string_view path)
{
    const HostLocation location(path);
    unlinkat(location.folder(), location.name(), 0);
}

}
