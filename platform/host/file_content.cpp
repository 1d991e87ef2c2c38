#include "platform/files.h"

#include "platform/host/opened_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace platform {

namespace {

/// What is larger is no file of ours; a device or a sparse file could be endless.
constexpr std::size_t largest_file = std::size_t{2} << 30;
constexpr const char* not_regular = "Not a regular file";

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

bool is_readable(const struct stat& info)
{
    return S_ISREG(info.st_mode) || S_ISDIR(info.st_mode);
}

}

Descriptor open_file(const HostLocation& location, std::string& error)
{
    struct stat info;
    if (fstatat(location.folder(), location.name(), &info, 0) == 0 && !is_readable(info)) {
        error = not_regular;
        return {};
    }
    // Another entry can have taken the name since: opening a fifo must not wait, and nothing but a file is read.
    Descriptor descriptor = location.open(O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (!descriptor)
        error = words(errno);
    else if (fstat(descriptor.get(), &info) == 0 && is_readable(info))
        return descriptor;
    else
        error = not_regular;
    return {};
}

std::optional<std::string> read_opened(const Descriptor& descriptor, std::string& error)
{
    std::string content;
    if (read_rest(descriptor.get(), content))
        return content;
    error = words(errno);
    return {};
}

std::optional<std::string> read_file(std::u16string_view path, std::string& error)
{
    const Descriptor descriptor = open_file(HostLocation(path), error);
    return descriptor ? read_opened(descriptor, error) : std::nullopt;
}

std::optional<std::string> read_file_or_pipe(std::u16string_view path, std::string& error)
{
    const Descriptor descriptor = HostLocation(path).open(O_RDONLY | O_NOCTTY);
    if (descriptor)
        return read_opened(descriptor, error);
    error = words(errno);
    return {};
}

}
