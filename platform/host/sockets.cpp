#include "platform/host/sockets.h"

#include <sys/socket.h>
#include <sys/time.h>

#include <cerrno>

namespace platform {

bool set_timeout(const Descriptor& socket, int option, std::chrono::milliseconds patience)
{
    timeval time{};
    time.tv_sec = patience.count() / 1000;
    time.tv_usec = patience.count() % 1000 * 1000;
    return setsockopt(socket.get(), SOL_SOCKET, option, &time, sizeof time) == 0;
}

bool bind_to(const Descriptor& socket, const sockaddr_un& address)
{
    return bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool connect_to(const Descriptor& socket, const sockaddr_un& address)
{
    return connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

ssize_t receive(const Descriptor& socket, std::span<char> buffer, int flags)
{
    for (;;) {
        const ssize_t got = recv(socket.get(), buffer.data(), buffer.size(), flags);
        if (got >= 0 || errno != EINTR) {
            if (got < 0 && errno == EAGAIN)
                errno = ETIMEDOUT;
            return got;
        }
    }
}

}
