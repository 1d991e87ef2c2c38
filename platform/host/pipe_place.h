#pragma once

#include "platform/host/descriptor.h"

#include <sys/un.h>

#include <functional>
#include <string>
#include <string_view>
#include <system_error>

namespace platform {

/// The error of the system call that has just failed.
std::error_code last_error();

/// The endings of a pipe's lock files: of its owner's, and of who starts that one.
inline constexpr std::string_view owner_ending = ".lock", start_ending = ".start";

/// Where a message pipe's socket and locks lie. Any length of the folder's path will do, and what is checked about
/// the folder holds for each use, since the folder stays open.
class PipePlace
{
public:
    /// `error()` tells when there is none.
    explicit PipePlace(std::string_view name);

    std::error_code error() const { return error_; }

    sockaddr_un address() const;
    /// Takes the socket away, if it is there.
    void remove_socket() const;

    /// Locks the file `name` + `ending`, made when it is missing, until the descriptor is closed; nobody waits. None,
    /// with errno, when that fails: EAGAIN when another program holds the lock.
    Descriptor try_lock(std::string_view ending) const;

    /// A place in the line for that file's lock, until the descriptor is closed; `own` comes to its head. None, with
    /// errno, when that fails.
    Descriptor stand_in_line(std::string_view ending) const;

    /// False when the file has been cleared away: another program would lock a new one.
    bool is_current(const Descriptor& lock, std::string_view ending) const;

    /// Whether another program holds that lock or stands in its line.
    bool is_locked(std::string_view ending) const;

private:
    Descriptor open_lock(std::string_view ending) const;

    std::string name_;
    Descriptor folder_;
    std::error_code error_;
};

/// Takes the lock that a place in the line is for. While another program holds it, waits, once `waits` has been
/// called. False with errno when it can't be had.
bool own(const Descriptor& place_in_line, const std::function<void()>& waits);

/// Gives a lock, and a place in its line, back before its descriptor is closed. Any thread.
void unlock(const Descriptor& lock);

}
