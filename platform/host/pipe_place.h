#pragma once

#include "platform/host/descriptor.h"

#include <sys/un.h>

#include <string>
#include <string_view>
#include <system_error>

namespace platform {

/// The error of the system call that has just failed.
std::error_code last_error();

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

    /// Whether another program holds that lock.
    bool is_locked(std::string_view ending) const;

private:
    Descriptor open_lock(const std::string& file) const;

    std::string name_;
    Descriptor folder_;
    std::error_code error_;
};

/// Gives a lock back before its descriptor is closed. Any thread.
void unlock(const Descriptor& lock);

}
