#include "platform/host/temporary_file.h"

#include "platform/host/write_all.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <thread>

namespace platform {

namespace {

constexpr std::chrono::milliseconds longest_wait{1000}, wait_step{10};
constexpr mode_t permission_bits = 0777;

}

TemporaryFile::~TemporaryFile()
{
    if (file_)
        unlinkat(location_.folder(), location_.name(), 0);
}

bool TemporaryFile::open(mode_t mode)
{
    const auto end = std::chrono::steady_clock::now() + longest_wait;
    for (Attempt attempt = try_open(mode); attempt != Attempt::Ours; attempt = try_open(mode)) {
        if (attempt == Attempt::Impossible || std::chrono::steady_clock::now() >= end)
            return false;
        if (attempt == Attempt::Busy)
            std::this_thread::sleep_for(wait_step);
    }
    return true;
}

bool TemporaryFile::write(std::string_view content, const struct stat* old) const
{
    return ftruncate(file_.get(), 0) == 0 && (!old || take_over(*old)) && write_all(file_.get(), content) &&
           fsync(file_.get()) == 0;
}

bool TemporaryFile::move_to(const HostLocation& target)
{
    if (renameat(location_.folder(), location_.name(), target.folder(), target.name()) != 0)
        return false;
    file_ = Descriptor();
    return true;
}

TemporaryFile::Attempt TemporaryFile::try_open(mode_t mode)
{
    Descriptor file = location_.open(O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, mode & permission_bits);
    if (!file)
        return remove_stranger() ? Attempt::Changed : Attempt::Impossible;
    // Some network file systems have no locks; there the file is taken as it is.
    if (flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return Attempt::Busy;
    struct stat opened;
    if (fstat(file.get(), &opened) != 0)
        return Attempt::Impossible;
    // Whoever had the lock may have moved the file to its target meanwhile: that one must not be touched.
    if (!has_name_of(opened))
        return Attempt::Changed;
    if (!S_ISREG(opened.st_mode))
        return remove_stranger() ? Attempt::Changed : Attempt::Impossible;
    file_ = std::move(file);
    return Attempt::Ours;
}

/// Removes a link, fifo or the like that has the temporary name; a folder stays. False when nothing was removed.
bool TemporaryFile::remove_stranger() const
{
    struct stat info;
    return fstatat(location_.folder(), location_.name(), &info, AT_SYMLINK_NOFOLLOW) == 0 && !S_ISREG(info.st_mode) &&
           !S_ISDIR(info.st_mode) && unlinkat(location_.folder(), location_.name(), 0) == 0;
}

bool TemporaryFile::has_name_of(const struct stat& opened) const
{
    struct stat named;
    return fstatat(location_.folder(), location_.name(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

bool TemporaryFile::take_over(const struct stat& old) const
{
    struct stat own;
    if (fstat(file_.get(), &own) != 0)
        return false;
    if (own.st_uid != old.st_uid || own.st_gid != old.st_gid) [[maybe_unused]]
        const int is_allowed = fchown(file_.get(), old.st_uid, old.st_gid);
    // Not every file system knows permission bits; what is right already needs no change.
    return ((own.st_mode ^ old.st_mode) & permission_bits) == 0 ||
           fchmod(file_.get(), old.st_mode & permission_bits) == 0;
}

}
