#include "platform/files.h"

#include "platform/host/temporary_file.h"
#include "platform/paths.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <climits>

namespace platform {

namespace {

constexpr int max_links = 40; // the kernel's own limit

std::string parent_of(const std::string& host_path)
{
    return host_path.substr(0, host_path.rfind('/') + 1);
}

/// Where the links at the end of a path lead, whether anything is there or not; empty after too many links.
std::string behind_links(std::string host_path)
{
    for (int links = 0; links <= max_links; ++links) {
        const HostLocation location(host_path);
        std::array<char, PATH_MAX> text;
        const ssize_t length = readlinkat(location.folder(), location.name(), text.data(), text.size());
        if (length < 0)
            return host_path;
        const std::string_view link(text.data(), static_cast<std::size_t>(length));
        host_path = link.starts_with('/') ? std::string(link) : parent_of(host_path).append(link);
    }
    return {};
}

/// A device would be lost by that, and a file that the user has write-protected is to stay as it is.
bool may_replace(const HostLocation& target, const struct stat& old)
{
    return S_ISREG(old.st_mode) && faccessat(target.folder(), target.name(), W_OK, AT_EACCESS) == 0;
}

/// Best effort: some file systems can't bring a folder to the disk, and the new name stands in any case.
void sync_folder(const std::string& host_path)
{
    if (const Descriptor folder = HostLocation(host_path).open(O_RDONLY | O_DIRECTORY))
        fsync(folder.get());
}

}

Replacement replace_content(std::u16string_view path, std::string_view content, const std::function<bool()>& confirm)
{
    const std::string target_path = behind_links(to_host_path(path));
    if (target_path.empty())
        return Replacement::NotWritten;
    const HostLocation target(target_path);
    struct stat info;
    const bool exists = fstatat(target.folder(), target.name(), &info, AT_SYMLINK_NOFOLLOW) == 0;
    const struct stat* old = exists && S_ISREG(info.st_mode) ? &info : nullptr;
    TemporaryFile temporary(target_path);
    if (!temporary.open(old ? old->st_mode : 0666) || !temporary.write(content, old))
        return Replacement::NotWritten;
    if (exists && !may_replace(target, info))
        return Replacement::NotReplaced;
    if (confirm && !confirm())
        return Replacement::Declined;
    if (!temporary.move_to(target))
        return Replacement::NotReplaced;
    sync_folder(parent_of(target_path));
    return Replacement::Done;
}

}
