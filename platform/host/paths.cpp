#include "platform/paths.h"

#include "platform/host/host_names.h"
#include "platform/host/path_forms.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

std::string& root()
{
    static std::string folder = "/";
    return folder;
}

SplitPath split_plain(std::u16string_view path)
{
    if (path.size() >= 2 && (path[0] | 0x20) == u'c' && path[1] == u':') {
        const std::u16string_view rest = path.substr(2);
        return rest.empty() || rest[0] == u'\\' ? SplitPath{PathForm::Drive, rest} : SplitPath{};
    }
    if (!path.starts_with(u"\\\\"))
        return {};
    const std::u16string_view rest = path.substr(2);
    return is_entry_name(rest.substr(0, rest.find(u'\\'))) ? SplitPath{PathForm::Server, rest} : SplitPath{};
}

}

bool is_entry_name(std::u16string_view name)
{
    constexpr std::u16string_view never(u"/\\\0", 3);
    return !name.empty() && name != u"." && name != u".." && name.find_first_of(never) == name.npos;
}

SplitPath split_path(std::u16string_view path)
{
    constexpr std::u16string_view prefix = u"\\\\?\\", server_prefix = u"\\\\?\\UNC\\";
    if (path.starts_with(server_prefix)) {
        const std::u16string_view rest = path.substr(server_prefix.size());
        return is_entry_name(rest.substr(0, rest.find(u'\\'))) ? SplitPath{PathForm::Server, rest} : SplitPath{};
    }
    return split_plain(path.starts_with(prefix) ? path.substr(prefix.size()) : path);
}

std::string to_host_path(std::u16string_view path)
{
    const SplitPath split = split_path(path);
    constexpr std::u16string_view never(u"/\0", 2);
    if (split.form == PathForm::None || split.rest.find_first_of(never) != split.rest.npos)
        return {};
    if (split.rest.empty() || (split.form == PathForm::Drive && split.rest == u"\\"))
        return root();
    std::string result = root() == "/" ? "" : root();
    if (split.form == PathForm::Server)
        result += "/net/";
    append_host_bytes(result, split.rest, '/');
    return result;
}

std::u16string from_host_path(std::string_view host_path)
{
    const std::string& folder = root();
    if (folder != "/" && host_path.starts_with(folder)) {
        if (host_path.size() == folder.size())
            return u"C:\\";
        if (host_path[folder.size()] == '/')
            host_path.remove_prefix(folder.size());
    }
    return u"C:" + decode_host_bytes(host_path, u'\\');
}

std::string absolute_host_path(std::string_view path, std::string_view current_folder)
{
    std::string whole(path.starts_with('/') ? "" : current_folder);
    whole.append("/").append(path);
    std::vector<std::string_view> names;
    for (std::size_t start = 0, end = 0; start < whole.size(); start = end + 1) {
        end = std::min(whole.find('/', start), whole.size());
        const std::string_view name = std::string_view(whole).substr(start, end - start);
        if (name == ".." && !names.empty())
            names.pop_back();
        else if (!name.empty() && name != "." && name != "..")
            names.push_back(name);
    }
    std::string result;
    for (const std::string_view name : names)
        result.append("/").append(name);
    return result.empty() ? "/" : result;
}

const std::string& host_root()
{
    return root();
}

void set_host_root(std::string folder)
{
    while (folder.ends_with('/'))
        folder.pop_back();
    root() = folder.empty() ? "/" : std::move(folder);
}

}
