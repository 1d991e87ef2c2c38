#include "engine/items/long_path.h"

namespace {

constexpr std::u16string_view prefix = u"\\\\?\\", server_prefix = u"\\\\?\\UNC\\", server_head = u"\\\\";

std::u16string joined(std::u16string_view head, std::u16string_view tail)
{
    std::u16string path;
    path.reserve(head.size() + tail.size());
    return path.append(head).append(tail);
}

}

std::u16string add_long_path_prefix(std::u16string_view path)
{
    if (path.starts_with(prefix))
        return std::u16string(path);
    if (path.starts_with(server_head))
        return joined(server_prefix, path.substr(server_head.size()));
    return joined(prefix, path);
}

std::u16string remove_long_path_prefix(std::u16string_view path)
{
    if (path.starts_with(server_prefix))
        return joined(server_head, path.substr(server_prefix.size()));
    return std::u16string(path.starts_with(prefix) ? path.substr(prefix.size()) : path);
}
