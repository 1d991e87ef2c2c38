#include "platform/host/sockets.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <algorithm>
#include <cerrno>
#include <limits>

namespace platform {

namespace {

/// At most what a poll takes.
int milliseconds_until(std::chrono::steady_clock::time_point end)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now()).count();
    return static_cast<int>(std::clamp<decltype(left)>(left, 0, std::numeric_limits<int>::max()));
}

}

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

ssize_t receive_before(std::chrono::steady_clock::time_point end, const Descriptor& socket, std::span<char> buffer,
                       int flags)
{
    for (;;) {
        const int left = milliseconds_until(end);
        if (left == 0) {
            errno = ETIMEDOUT;
            return -1;
        }
        pollfd waiting{socket.get(), POLLIN, 0};
        poll(&waiting, 1, left);
        const ssize_t got = recv(socket.get(), buffer.data(), buffer.size(), flags | MSG_DONTWAIT);
        if (got >= 0 || (errno != EINTR && errno != EAGAIN))
            return got;
    }
}

}
