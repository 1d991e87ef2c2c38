#include "platform/files.h"

#include "platform/host/entry_attributes.h"
#include "platform/host/host_location.h"
#include "platform/host/path_forms.h"
#include "platform/paths.h"

#include <boost/filesystem/exception.hpp>
#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <memory>

namespace platform {

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

bool is_dot_entry(const char* name)
{
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

/// Calls `visit(descriptor, entry)` for each entry of the folder but "." and "..".
template <typename Visit>
void read_folder(std::u16string_view path, const Visit& visit)
{
    Descriptor descriptor = HostLocation(path).open(O_RDONLY | O_DIRECTORY);
    const std::unique_ptr<DIR, CloseFolder> folder(descriptor ? fdopendir(descriptor.get()) : nullptr);
    if (!folder)
        return;
    const int number = descriptor.release();
    while (const dirent* entry = readdir(folder.get()))
        if (!is_dot_entry(entry->d_name))
            visit(number, *entry);
}

/// What the folder alone tells of an entry whose attributes may not be read.
FileAttributes bare_attributes(const dirent& entry)
{
    FileAttributes result;
    result.is_folder = entry.d_type == DT_DIR;
    result.is_link = entry.d_type == DT_LNK;
    return result;
}

[[noreturn]] void throw_not_created(const std::string& host_path, int error)
{
    throw boost::filesystem::filesystem_error("create_directories", boost::filesystem::path(host_path),
                                              boost::system::error_code(error, boost::system::system_category()));
}

/// Paths too long for one call: opens the folder `name`, after creating it when it is missing. Without a descriptor
/// errno has the reason.
Descriptor enter_or_create(int folder, const char* name)
{
    constexpr int flags = O_PATH | O_DIRECTORY | O_CLOEXEC;
    Descriptor result(openat(folder, name, flags));
    if (result || errno != ENOENT)
        return result;
    const bool is_there = mkdirat(folder, name, 0777) == 0 || errno == EEXIST;
    return Descriptor(is_there ? openat(folder, name, flags) : -1);
}

}

void for_each_entry(std::u16string_view folder,
                    const std::function<void(std::u16string name, const FileAttributes&)>& visit)
{
    read_folder(folder, [&visit](int descriptor, const dirent& entry) {
        const std::optional<FileAttributes> attributes = entry_attributes(descriptor, entry.d_name);
        if (attributes || errno != ENOENT)
            visit(from_host_name(entry.d_name), attributes ? *attributes : bare_attributes(entry));
    });
}

std::vector<std::u16string> server_shares(std::u16string_view server)
{
    std::vector<std::u16string> result;
    if (!is_entry_name(server))
        return result;
    // A share waits to be mounted until it is used: no entry that tells its own type is asked further.
    read_folder(u"\\\\" + std::u16string(server), [&result](int descriptor, const dirent& entry) {
        if (entry.d_type == DT_DIR ||
            ((entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN) && leads_to_folder(descriptor, entry.d_name)))
            result.push_back(from_host_name(entry.d_name));
    });
    return result;
}

void create_directories(std::u16string_view folder)
{
    const std::string host_path = to_host_path(folder);
    if (host_path.empty())
        throw_not_created(host_path, ENOENT);
    if (host_path.size() < PATH_MAX) {
        boost::system::error_code error;
        boost::filesystem::create_directories(host_path, error);
        if (error)
            throw_not_created(host_path, error.value());
        return;
    }
    Descriptor current(open("/", O_PATH | O_DIRECTORY | O_CLOEXEC));
    for (std::size_t start = 0, end = 0; current && start < host_path.size(); start = end + 1) {
        end = std::min(host_path.find('/', start), host_path.size());
        if (end > start)
            current = enter_or_create(current.get(), host_path.substr(start, end - start).c_str());
    }
    if (!current)
        throw_not_created(host_path, errno);
}

}
