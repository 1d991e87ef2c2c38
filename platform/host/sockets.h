#pragma once

#include "platform/host/descriptor.h"

#include <sys/un.h>

#include <chrono>
#include <span>

/// What both ends of a message pipe do with their sockets. Failures leave their reason in errno.
namespace platform {

/// Lets calls give up after `patience`; `option` is SO_RCVTIMEO or SO_SNDTIMEO.
bool set_timeout(const Descriptor& socket, int option, std::chrono::milliseconds patience);

bool bind_to(const Descriptor& socket, const sockaddr_un& address);
bool connect_to(const Descriptor& socket, const sockaddr_un& address);

/// Bytes received, 0 at the end, -1 at a failure: ETIMEDOUT when nothing has come in time.
ssize_t receive(const Descriptor& socket, std::span<char> buffer, int flags);

}
