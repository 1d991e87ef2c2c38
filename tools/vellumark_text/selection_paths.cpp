#include "vellumark_text/selection_paths.h"

#include "engine/text/letters.h"
#include "engine/text/utf.h"
#include "platform/paths.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace {

std::string read_all(std::istream& stream, const std::string& name)
{
    std::string content(std::istreambuf_iterator<char>(stream), {});
    if (stream.bad())
        throw std::runtime_error(name + ": the list of paths can't be read");
    return content;
}

std::string read_list(const std::string& name)
{
    if (name == "-")
        return read_all(std::cin, "standard input");
    std::ifstream file(name, std::ios::binary);
    if (!file || std::filesystem::is_directory(name))
        throw std::runtime_error(name + ": " + (file ? "Is a directory" : std::strerror(errno)));
    return read_all(file, name);
}

bool is_drive_form(std::string_view path)
{
    return path.size() >= 3 && is_ascii_letter(static_cast<unsigned char>(path[0])) && path[1] == ':' &&
           path[2] == '\\';
}

}

void for_each_path(const Options& options, const std::function<void(std::string_view)>& visit)
{
    for (const std::string& path : options.paths)
        visit(path);
    if (!options.paths_from)
        return;
    const std::string list = read_list(*options.paths_from);
    const char end_mark = options.nul_separated ? '\0' : '\n';
    for (std::string_view rest = list; !rest.empty();) {
        const std::size_t end = std::min(rest.find(end_mark), rest.size());
        visit(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

std::u16string to_system_path(std::string_view path, std::string_view current_folder)
{
    if (is_drive_form(path) || path.starts_with("\\\\"))
        return to_utf16(path);
    return platform::from_host_path(platform::absolute_host_path(path, current_folder));
}

std::string current_folder()
{
    std::error_code error;
    const auto folder = std::filesystem::current_path(error);
    if (error)
        throw std::runtime_error("the current folder can't be told: " + error.message());
    return folder.string();
}
