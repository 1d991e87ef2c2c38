#include "platform/host/runtime_folder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <string>

namespace platform {

namespace {

/// Opens a folder of the user's own in which none of the mode's `forbidden` bits is set.
Descriptor open_own_folder(const std::string& path, mode_t forbidden, int flags)
{
    Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags));

    struct stat status {
    };

    if (!folder || fstat(folder.get(), &status) != 0)
        return Descriptor();
    if (status.st_uid != geteuid() || (status.st_mode & forbidden) != 0) {
        errno = EACCES;
        return Descriptor();
    }
    return folder;
}

std::string temporary_files()
{
    const char* const folder = std::getenv("TMPDIR");
    return folder && *folder == '/' ? folder : "/tmp";
}

}

Descriptor open_runtime_folder()
{
    const char* const folder = std::getenv("XDG_RUNTIME_DIR");
    if (folder && *folder == '/')
        if (Descriptor opened = open_own_folder(folder, S_IWGRP | S_IWOTH, 0))
            return opened;
    // Anybody may make entries there, so what lies under the name need not be ours, nor a folder.
    const std::string own = temporary_files() + "/vellumark-" + std::to_string(geteuid());
    if (mkdir(own.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return Descriptor();
    return open_own_folder(own, S_IRWXG | S_IRWXO, O_NOFOLLOW);
}

}
