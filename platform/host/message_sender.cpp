#include "platform/host/pipe_place.h"
#include "platform/host/sockets.h"
#include "platform/message_pipe.h"

#include <sys/socket.h>

#include <array>
#include <cerrno>

namespace platform {

namespace {

bool send_all(const Descriptor& socket, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t sent = send(socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno != EINTR)
            return false;
        if (sent > 0)
            bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

/// The end tells that the message was taken; the owner says something only to refuse it.
std::error_code wait_for_end(const Descriptor& socket)
{
    std::array<char, 1> refusal{};
    const ssize_t got = receive(socket, refusal, 0);
    if (got < 0)
        return last_error();
    return got == 0 ? std::error_code() : make_error_code(std::errc::connection_reset);
}

/// A call that sends fails with EAGAIN when its time is over, whatever it waited for.
std::error_code sending_error()
{
    return errno == EAGAIN ? make_error_code(std::errc::timed_out) : last_error();
}

}

std::error_code send_message(std::string_view name, std::string_view message, std::chrono::milliseconds patience)
{
    const PipePlace place(name);
    if (place.error())
        return place.error();
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (!socket || !set_timeout(socket, SO_SNDTIMEO, patience) || !set_timeout(socket, SO_RCVTIMEO, patience))
        return last_error();
    if (!connect_to(socket, place.address()))
        return errno == ENOENT ? make_error_code(std::errc::connection_refused) : sending_error();
    if (!send_all(socket, message) || shutdown(socket.get(), SHUT_WR) != 0)
        return sending_error();
    return wait_for_end(socket);
}

}
