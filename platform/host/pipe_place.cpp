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

/// A part of a lock file.
struct Range {
    off_t start, length;
};

/// The lock is the first byte; the second one is shared by its owner and those who stand in line, so that nobody
/// takes it for free while it passes from one to the next.
constexpr Range lock_byte{0, 1}, line_byte{1, 1}, whole_file{0, 0};

/// A lock of the open file, not of the process: a forked child's end doesn't free it.
struct flock lock_of(const Range& range, short type)
{
    struct flock lock {
    };

    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = range.start;
    lock.l_len = range.length;
    return lock;
}

bool set_lock(const Descriptor& file, const Range& range, short type, int command = F_OFD_SETLK)
{
    struct flock lock = lock_of(range, type);
    int result = 0;
    do
        result = fcntl(file.get(), command, &lock);
    while (result != 0 && errno == EINTR);
    return result == 0;
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

Descriptor PipePlace::open_lock(std::string_view ending) const
{
    const std::string file = name_ + std::string(ending);
    return Descriptor(
        openat(folder_.get(), file.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
}

Descriptor PipePlace::try_lock(std::string_view ending) const
{
    for (;;) {
        Descriptor lock = open_lock(ending);
        if (!lock || !set_lock(lock, whole_file, F_WRLCK))
            return Descriptor();
        // Whoever clears old files away may have taken this one in between.
        if (is_current(lock, ending))
            return lock;
    }
}

Descriptor PipePlace::stand_in_line(std::string_view ending) const
{
    Descriptor place = open_lock(ending);
    return place && set_lock(place, line_byte, F_RDLCK) ? std::move(place) : Descriptor();
}

bool PipePlace::is_current(const Descriptor& lock, std::string_view ending) const
{
    const std::string file = name_ + std::string(ending);

    struct stat opened {
    }, named{};

    return fstat(lock.get(), &opened) == 0 &&
           fstatat(folder_.get(), file.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

bool PipePlace::is_locked(std::string_view ending) const
{
    const Descriptor file = open_lock(ending);
    struct flock lock = lock_of(whole_file, F_WRLCK);
    return file && fcntl(file.get(), F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

bool own(const Descriptor& place_in_line, const std::function<void()>& waits)
{
    if (set_lock(place_in_line, lock_byte, F_WRLCK))
        return true;
    if (errno != EAGAIN)
        return false;
    waits();
    return set_lock(place_in_line, lock_byte, F_WRLCK, F_OFD_SETLKW);
}

void unlock(const Descriptor& lock)
{
    set_lock(lock, whole_file, F_UNLCK);
}

}
