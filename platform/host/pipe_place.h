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

    /// Opens the lock file `name` + `ending`, made when it is missing.
    Descriptor open_lock(std::string_view ending) const;

private:
    std::string name_;
    Descriptor folder_;
    std::error_code error_;
};

/// Locks what `open_lock` opened, until the descriptor is closed; nobody waits. False, with errno, when that fails:
/// EAGAIN when another program holds it.
bool try_lock(const Descriptor& file);

/// Whether another program has locked the file.
bool is_locked(const Descriptor& file);

}
