#include "platform/host/pipe_place.h"

#include "platform/host/runtime_folder.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>

namespace platform {

namespace {

std::string socket_path(const Descriptor& folder, const std::string& name)
{
    return "/proc/self/fd/" + std::to_string(folder.get()) + "/" + name;
}

/// A lock of the open file, not of the process: a forked child's end doesn't free it.
struct flock whole_file(short type)
{
    struct flock lock {
    };

    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    return lock;
}

bool set_lock(const Descriptor& file, short type)
{
    struct flock lock = whole_file(type);
    return fcntl(file.get(), F_OFD_SETLK, &lock) == 0;
}

/// False as well when nothing, or nothing that can be looked at, has the name.
bool is_named(const Descriptor& file, const Descriptor& folder, const std::string& name)
{
    struct stat opened {
    }, named{};

    return fstat(file.get(), &opened) == 0 && fstatat(folder.get(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

}

std::error_code last_error()
{
    return {errno, std::generic_category()};
}

PipePlace::PipePlace(std::string_view name) : name_(name), folder_(open_runtime_folder())
{
    if (!folder_)
        error_ = last_error();
    else if (name.empty() || name.find_first_of(std::string_view("/\0", 2)) != name.npos)
        error_ = make_error_code(std::errc::invalid_argument);
    else if (socket_path(folder_, name_).size() >= sizeof(sockaddr_un::sun_path))
        error_ = make_error_code(std::errc::filename_too_long);
}

sockaddr_un PipePlace::address() const
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = socket_path(folder_, name_);
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return address;
}

void PipePlace::remove_socket() const
{
    unlinkat(folder_.get(), name_.c_str(), 0);
}

Descriptor PipePlace::open_lock(const std::string& file) const
{
    return Descriptor(
        openat(folder_.get(), file.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
}

Descriptor PipePlace::try_lock(std::string_view ending) const
{
    const std::string file = name_ + std::string(ending);
    for (;;) {
        Descriptor lock = open_lock(file);
        if (!lock || !set_lock(lock, F_WRLCK))
            return Descriptor();
        // Whoever clears old files away may have taken this one in between: the next program would lock another.
        if (is_named(lock, folder_, file))
            return lock;
    }
}

bool PipePlace::is_locked(std::string_view ending) const
{
    const Descriptor file = open_lock(name_ + std::string(ending));
    struct flock lock = whole_file(F_WRLCK);
    return file && fcntl(file.get(), F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

void unlock(const Descriptor& lock)
{
    set_lock(lock, F_UNLCK);
}

}
