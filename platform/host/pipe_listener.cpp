#include "platform/host/pipe_listener.h"

#include "platform/host/sockets.h"

#include <sys/socket.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>

namespace platform {

namespace {

bool is_other_user(const Descriptor& socket)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 || peer.uid != geteuid();
}

/// Failures that pass, the waiting clients being none the worse.
bool is_out_of_room(int error)
{
    return error == EMFILE || error == ENFILE || error == ENOBUFS || error == ENOMEM;
}

/// True when a program listens there, even one that has no room for a client.
bool is_listened_at(const sockaddr_un& address)
{
    const Descriptor probe(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return probe && (connect_to(probe, address) || errno == EAGAIN);
}

/// Listens where nobody else does; whoever calls holds the lock.
Descriptor listen_at(const PipePlace& place)
{
    Descriptor listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const sockaddr_un address = place.address();
    // The lock may be another file than its owner's, for that can be cleared away while it is held.
    if (is_listened_at(address)) {
        errno = EADDRINUSE;
        return Descriptor();
    }
    place.remove_socket();
    // The mode is set before the socket has a name, so that it never stands there with another.
    if (listener && fchmod(listener.get(), S_IRUSR | S_IWUSR) == 0 && bind_to(listener, address) &&
        listen(listener.get(), SOMAXCONN) == 0)
        return listener;
    return Descriptor();
}

/// Passing failures, the waiting clients being none the worse, are none.
std::error_code accept_error()
{
    if (errno == EAGAIN)
        return {};
    if (!is_out_of_room(errno))
        return last_error();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return {};
}

}

std::error_code PipeListener::open(const std::function<void()>& waits)
{
    keep(listener_, Descriptor());
    std::error_code error;
    if (!is_closed_)
        error = take_name(waits);
    if (is_closed_)
        error = make_error_code(std::errc::operation_canceled);
    if (error) {
        keep(listener_, Descriptor());
        keep(lock_, Descriptor());
    }
    return error;
}

void PipeListener::close()
{
    const std::lock_guard guard(mutex_);
    is_closed_ = true;
    shutdown(listener_.get(), SHUT_RDWR);
    unlock(lock_);
}

Descriptor PipeListener::accept(std::error_code& error) const
{
    for (;;) {
        Descriptor client(accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
        if (client && !is_other_user(client))
            return client;
        if (client || errno == EINTR || errno == ECONNABORTED)
            continue;
        error = accept_error();
        return Descriptor();
    }
}

/// Nothing is kept once the pipe is closed, for nobody would close that.
void PipeListener::keep(Descriptor& member, Descriptor value)
{
    const std::lock_guard guard(mutex_);
    member = is_closed_ ? Descriptor() : std::move(value);
}

std::error_code PipeListener::take_name(const std::function<void()>& waits)
{
    const PipePlace place(name_);
    if (place.error())
        return place.error();
    if (!take_lock(place, waits))
        return last_error();
    if (!is_closed_)
        keep(listener_, listen_at(place));
    return listener_ ? std::error_code() : last_error();
}

/// False with errno.
bool PipeListener::take_lock(const PipePlace& place, const std::function<void()>& waits)
{
    bool has_told = false;
    const auto tell_once = [&] {
        if (!std::exchange(has_told, true))
            waits();
    };
    do {
        keep(lock_, place.stand_in_line(owner_ending));
        if (!lock_ || !own(lock_, tell_once))
            return false;
    } while (!place.is_current(lock_, owner_ending));
    return true;
}

}
