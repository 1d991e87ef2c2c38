#include "platform/host/link_resolver.h"

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <climits>

namespace platform {

namespace {

constexpr int max_links = 40; // the kernel's own limit
constexpr int passage = O_PATH | O_DIRECTORY | O_CLOEXEC;

}

LinkResolver::LinkResolver()
{
    restart_at_root();
}

std::string LinkResolver::resolve(std::string_view host_path)
{
    push_names(host_path);
    while (!pending_.empty()) {
        const std::string name = std::move(pending_.back());
        pending_.pop_back();
        if (!folder_ || !walk(name))
            return {};
    }
    return path_.empty() ? "/" : path_;
}

void LinkResolver::restart_at_root()
{
    folder_ = Descriptor(open("/", passage));
    path_.clear();
}

/// A slash at the end stays as a ".": what stands before it must be a folder.
void LinkResolver::push_names(std::string_view path)
{
    if (path.ends_with('/'))
        pending_.emplace_back(".");
    while (!path.empty()) {
        const std::size_t slash = path.rfind('/');
        const std::string_view name = slash == path.npos ? path : path.substr(slash + 1);
        if (!name.empty())
            pending_.emplace_back(name);
        path = slash == path.npos ? std::string_view() : path.substr(0, slash);
    }
}

bool LinkResolver::walk(const std::string& name)
{
    if (name == ".")
        return true;
    if (name == "..")
        return walk_up();
    std::array<char, PATH_MAX> text;
    const ssize_t length = readlinkat(folder_.get(), name.c_str(), text.data(), text.size());
    if (length >= 0)
        return follow({text.data(), static_cast<std::size_t>(length)});
    return errno == EINVAL && enter(name);
}

bool LinkResolver::walk_up()
{
    folder_ = Descriptor(openat(folder_.get(), "..", passage));
    path_.erase(path_.empty() ? 0 : path_.rfind('/'));
    return static_cast<bool>(folder_);
}

bool LinkResolver::follow(std::string_view link_text)
{
    if (++links_ > max_links || link_text.size() == PATH_MAX)
        return false;
    if (link_text.starts_with('/'))
        restart_at_root();
    push_names(link_text);
    return true;
}

/// Goes down to what is no link. The last name isn't opened: reading it as a link has shown that it exists.
bool LinkResolver::enter(const std::string& name)
{
    path_.append("/").append(name);
    if (!pending_.empty())
        folder_ = Descriptor(openat(folder_.get(), name.c_str(), passage | O_NOFOLLOW));
    return true;
}

}
