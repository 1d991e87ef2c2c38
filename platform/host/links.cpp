#include "platform/files.h"

#include "platform/host/host_location.h"
#include "platform/host/host_names.h"
#include "platform/host/link_resolver.h"
#include "platform/host/path_forms.h"
#include "platform/paths.h"

namespace platform {

namespace {

bool is_link(const std::string& host_path)
{
    const HostLocation location(host_path);
    char first = 0;
    return readlinkat(location.folder(), location.name(), &first, 1) >= 0;
}

/// Server form of a host path at or below a share, else empty.
std::u16string to_server_form(std::string_view host_path)
{
    const std::string servers = (host_root() == "/" ? "" : host_root()) + "/net/";
    if (!host_path.starts_with(servers))
        return {};
    host_path.remove_prefix(servers.size());
    const bool has_share = host_path.find('/') != host_path.npos;
    return has_share ? u"\\\\" + decode_host_bytes(host_path, u'\\') : std::u16string();
}

}

std::u16string link_target(std::u16string_view path)
{
    const std::string host_path = to_host_path(path);
    if (host_path.empty() || !is_link(host_path))
        return {};
    const std::string target = LinkResolver().resolve(host_path);
    if (target.empty())
        return {};
    if (split_path(path).form == PathForm::Server)
        if (std::u16string result = to_server_form(target); !result.empty())
            return result;
    return from_host_path(target);
}

}
