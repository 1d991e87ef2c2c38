#pragma once

#include "platform/host/descriptor.h"

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Follows every link of a path by itself, one name at a time, so that neither the path nor its final form has a
/// limit of length. Opens folders for passage only and never what the path leads to. Serves one path.
class LinkResolver
{
public:
    LinkResolver();

    /// The final path of an absolute host path; empty when it leads to nothing or over more than 40 links.
    std::string resolve(std::string_view host_path);

private:
    Descriptor folder_;
    std::string path_;                 ///< of `folder_` or, at the end, of the target; empty for "/"
    std::vector<std::string> pending_; ///< names still to walk, the next one last
    int links_ = 0;

    void restart_at_root();
    void push_names(std::string_view path);
    bool walk(const std::string& name);
    bool walk_up();
    bool follow(std::string_view link_text);
    bool enter(const std::string& name);
};

}
