#include "common/selection_paths.h"

#include "engine/text/letters.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/utf.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace {

/// Told once, when the first relative path needs it.
std::string_view current_folder()
{
    static const std::string folder = [] {
        std::error_code error;
        const auto path = std::filesystem::current_path(error);
        if (error)
            throw std::runtime_error("the current folder can't be told: " + error.message());
        return path.string();
    }();
    return folder;
}

std::string read_standard_input()
{
    std::string content;
    std::array<char, 1 << 16> buffer;
    while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), stdin))
        content.append(buffer.data(), got);
    if (std::ferror(stdin) != 0)
        throw std::runtime_error("the list of paths can't be read from standard input");
    return content;
}

std::string read_list(const std::string& name)
{
    if (name == "-")
        return read_standard_input();
    std::string reason;
    if (auto content = platform::read_file_or_pipe(to_system_path(name), reason))
        return *std::move(content);
    throw std::runtime_error(name + ": " + reason);
}

bool is_drive_form(std::string_view path)
{
    return path.size() >= 3 && is_ascii_letter(static_cast<unsigned char>(path[0])) && path[1] == ':' &&
           path[2] == '\\';
}

/// A path that is typed in the system's own form. A byte that is no valid UTF-8 travels as it does in a name of the
/// host, so that the file is found.
std::u16string from_typed_path(std::string_view path)
{
    std::u16string units(path.size(), u'\0');
    char16_t* out = units.data();
    const char* const end = path.data() + path.size();
    for (const char* at = path.data(); at != end;) {
        const platform::Utf8Character character = platform::utf8_character(at, end);
        if (character.well_formed)
            out = platform::put_utf16(out, character.code);
        else
            *out++ = static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(*at));
        at += character.well_formed ? character.length : 1;
    }
    units.resize(static_cast<std::size_t>(out - units.data()));
    return units;
}

}

void for_each_path(const CommonOptions& options, const std::function<void(std::string_view)>& visit)
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

std::u16string to_system_path(std::string_view path)
{
    if (is_drive_form(path) || path.starts_with("\\\\"))
        return from_typed_path(path);
    return platform::from_host_path(
        platform::absolute_host_path(path, path.starts_with('/') ? std::string_view() : current_folder()));
}

std::string reason_of_refusal(std::u16string_view path)
{
    const std::string host_path = platform::to_host_path(path);
    if (host_path.empty())
        return "there can be no such path here";
    std::error_code error;
    static_cast<void>(std::filesystem::symlink_status(host_path, error));
    return error ? error.message() : "the path can't be read";
}
