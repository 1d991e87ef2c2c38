#include "platform/file_reader.h"

#include "platform/host/host_location.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

namespace platform {

FileReader::FileReader(std::u16string_view path)
{
    const HostLocation location(path);
    struct stat info;
    if (fstatat(location.folder(), location.name(), &info, 0) != 0 || !S_ISREG(info.st_mode))
        return;
    // Another entry can have taken the name since: opening a fifo must not wait, and nothing but a file is kept.
    Descriptor descriptor = location.open(O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (descriptor && fstat(descriptor.get(), &info) == 0 && S_ISREG(info.st_mode))
        descriptor_ = descriptor.release();
}

FileReader::~FileReader()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

std::size_t FileReader::read(std::span<std::byte> buffer)
{
    std::size_t used = 0;
    while (used < buffer.size()) {
        const ssize_t count = ::read(descriptor_, buffer.data() + used, buffer.size() - used);
        if (count > 0)
            used += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            break;
    }
    return used;
}

}
