#pragma once

#include "platform/host/host_location.h"

#include <sys/stat.h>

#include <string>
#include <string_view>

namespace platform {

/// The file beside a target that is filled first and then takes the target's name. It is locked as long as this
/// object lives, and its own name goes with the object. One that an interrupted save left is used again.
class TemporaryFile
{
public:
    /// `target` is a host path; the temporary name is this with a "+".
    explicit TemporaryFile(const std::string& target) : location_(target + "+") {}

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    /// Opens and locks the file, with `mode` when it is new. Waits up to a second for another process that has it.
    bool open(mode_t mode);

    /// Brings `content` to the disk as the file's whole content. `old` is the file that it is to replace, whose
    /// permission bits it takes, and owner where that is allowed; null when there is none.
    bool write(std::string_view content, const struct stat* old) const;

    /// Gives the file the target's name in one step.
    bool move_to(const HostLocation& target);

private:
    enum class Attempt { Ours, Busy, Changed, Impossible };

    Attempt try_open(mode_t mode);
    bool remove_stranger() const;
    bool has_name_of(const struct stat& opened) const;
    bool take_over(const struct stat& old) const;

    HostLocation location_;
    Descriptor file_;
};

}
