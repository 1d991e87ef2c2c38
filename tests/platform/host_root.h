#pragma once

#include "platform/paths.h"

#include <string>

/// Points drive `C:` at a folder for the length of a test.
class HostRoot
{
public:
    explicit HostRoot(std::string folder) { platform::set_host_root(std::move(folder)); }

    ~HostRoot() { platform::set_host_root("/"); }

    HostRoot(const HostRoot&) = delete;
    HostRoot& operator=(const HostRoot&) = delete;
};
