#pragma once

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <string>

/// A socket connected to the one at `path`, without any of our own manners; -1 when that fails. The caller closes it.
inline int raw_client(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    const int client = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return client;
    close(client);
    return -1;
}
