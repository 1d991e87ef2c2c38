#include "support/temp_folder.h"

#include "platform/paths.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

TempFolder::TempFolder()
{
    std::string name = (fs::canonical(fs::temp_directory_path()) / "vellumark-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no temporary folder");
    folder_ = name;
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::string TempFolder::host(std::string_view name) const
{
    return name.empty() ? folder_ : folder_ + "/" + std::string(name);
}

std::u16string TempFolder::path(std::string_view name) const
{
    return platform::from_host_path(host(name));
}

std::u16string TempFolder::write(std::string_view name, std::string_view content) const
{
    fs::create_directories(fs::path(host(name)).parent_path());
    std::ofstream file(host(name), std::ios::binary);
    if (!(file << content).flush())
        throw std::runtime_error("cannot write " + host(name));
    return path(name);
}

std::u16string TempFolder::write_endless(std::string_view name) const
{
    std::u16string path = write(name);
    fs::resize_file(host(name), std::uintmax_t{1} << 42);
    return path;
}

std::u16string TempFolder::make_folder(std::string_view name) const
{
    fs::create_directories(host(name));
    return path(name);
}

std::u16string TempFolder::make_link(std::string_view name, std::string_view target) const
{
    fs::create_directories(fs::path(host(name)).parent_path());
    fs::create_symlink(target, host(name));
    return path(name);
}

void TempFolder::set_modified(std::string_view name, long long seconds) const
{
    const std::array<timespec, 2> times{timespec{seconds, 0}, timespec{seconds, 0}};
    if (utimensat(AT_FDCWD, host(name).c_str(), times.data(), AT_SYMLINK_NOFOLLOW) != 0)
        throw std::runtime_error("cannot set the time of " + host(name));
}
