#pragma once

#include "platform/host/descriptor.h"

#include <sys/types.h>

#include <string>

namespace platform {

/// A program of ours at work in a process of its own, which may be lost at any moment. Its descriptor 3 is a socket
/// that keeps messages apart (SOCK_SEQPACKET) and that ends when either side does; its standard streams lead nowhere.
class HelperProcess
{
public:
    HelperProcess() = default;
    HelperProcess(HelperProcess&& other) noexcept;
    HelperProcess& operator=(HelperProcess&& other) noexcept;
    /// Kills the process. It holds nothing worth an orderly end.
    ~HelperProcess();

    /// Without a process when the program is missing or can't be started.
    static HelperProcess start(const std::string& program);

    explicit operator bool() const { return id_ > 0; }

    /// Our end of the socket.
    int socket() const { return socket_.get(); }

private:
    HelperProcess(pid_t id, Descriptor socket);

    pid_t id_ = 0;
    Descriptor socket_;
};

}
