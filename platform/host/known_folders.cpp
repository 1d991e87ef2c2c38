#include "platform/known_folders.h"

#include "platform/host/program_file.h"
#include "platform/paths.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace platform {

namespace {

std::u16string to_folder(std::string_view host_path)
{
    while (host_path.ends_with('/'))
        host_path.remove_suffix(1);
    return from_host_path(host_path);
}

/// The absolute paths in a variable's list, whose entries a colon parts.
std::vector<std::u16string> absolute_folders(const char* list)
{
    std::vector<std::u16string> folders;
    for (std::string_view rest = list ? list : ""; !rest.empty();) {
        const std::string_view entry = rest.substr(0, rest.find(':'));
        if (entry.starts_with('/'))
            folders.push_back(to_folder(entry));
        rest.remove_prefix(std::min(entry.size() + 1, rest.size()));
    }
    return folders;
}

/// A variable's value when it is an absolute path.
std::optional<std::string> absolute_variable(const char* name)
{
    const char* value = std::getenv(name);
    return value && *value == '/' ? std::optional<std::string>(value) : std::nullopt;
}

std::optional<std::string> home_from_user_database()
{
    std::vector<char> buffer(1024);
    passwd entry{};
    passwd* found = nullptr;
    while (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE)
        buffer.resize(buffer.size() * 2);
    return found && found->pw_dir && *found->pw_dir == '/' ? std::optional<std::string>(found->pw_dir) : std::nullopt;
}

}

std::optional<std::u16string> user_settings_folder()
{
    if (const auto folder = absolute_variable("XDG_CONFIG_HOME"))
        return to_folder(*folder);
    auto home = absolute_variable("HOME");
    if (!home)
        home = home_from_user_database();
    return home ? std::optional(to_folder(*home) + u"\\.config") : std::nullopt;
}

std::vector<std::u16string> machine_settings_folders()
{
    auto folders = absolute_folders(std::getenv("XDG_CONFIG_DIRS"));
    if (folders.empty())
        folders.push_back(to_folder("/etc/xdg"));
    return folders;
}

std::string host_program_folder()
{
    std::array<char, PATH_MAX> path;
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    if (length <= 0)
        throw std::runtime_error("The system does not tell where the program lies");
    const std::string_view file(path.data(), static_cast<std::size_t>(length));
    return std::string(file.substr(0, file.rfind('/')));
}

std::u16string program_folder()
{
    return to_folder(host_program_folder());
}

}
