#include "platform/message_pipe.h"

#include "platform/host/pipe_place.h"
#include "platform/host/sockets.h"

#include <sys/socket.h>
#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <thread>

namespace platform {

namespace {

constexpr std::string_view owner_ending = ".lock", start_ending = ".start";

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

class SocketPipe final : public MessagePipe
{
public:
    SocketPipe(Descriptor lock, Descriptor listener, const PipePatience& patience)
        : lock_(std::move(lock)), listener_(std::move(listener)), patience_(patience)
    {}

    std::error_code connect() override
    {
        for (;;) {
            Descriptor client(accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
            const int error = errno;
            // Clients that stood in the queue can still be had after the end.
            if (is_closed_)
                return make_error_code(std::errc::operation_canceled);
            if (client && !is_other_user(client)) {
                client_ = std::move(client);
                end_ = Clock::now() + patience_.message;
                return {};
            }
            if (client || error == EINTR || error == ECONNABORTED)
                continue;
            if (!is_out_of_room(error))
                return {error, std::generic_category()};
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    }

    PipeRead read(std::span<char> buffer) override
    {
        PipeRead result;
        while (result.count < buffer.size()) {
            const ssize_t got = receive_next(buffer.subspan(result.count), 0);
            if (got < 0)
                return {result.count, false, last_error()};
            if (got == 0)
                return {result.count, true, {}};
            result.count += static_cast<std::size_t>(got);
        }
        char next = 0;
        const ssize_t more = receive_next({&next, 1}, MSG_PEEK);
        return {result.count, more == 0, more < 0 ? last_error() : std::error_code()};
    }

    void disconnect() override { client_ = Descriptor(); }

    void refuse() override
    {
        // Nobody to tell it to is as good.
        send(client_.get(), "", 1, MSG_NOSIGNAL | MSG_DONTWAIT);
        disconnect();
    }

    void close() override
    {
        is_closed_ = true;
        shutdown(listener_.get(), SHUT_RDWR);
        unlock(lock_);
    }

private:
    using Clock = std::chrono::steady_clock;

    ssize_t receive_next(std::span<char> buffer, int flags) const
    {
        return receive_before(std::min(Clock::now() + patience_.silence, end_), client_, buffer, flags);
    }

    const Descriptor lock_;
    const Descriptor listener_;
    const PipePatience patience_;
    Descriptor client_;
    Clock::time_point end_;
    std::atomic<bool> is_closed_ = false;
};

/// True when a program listens there, even one that has no room for a client.
bool is_listened_at(const sockaddr_un& address)
{
    const Descriptor probe(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return probe && (connect_to(probe, address) || errno == EAGAIN);
}

/// Listens where nobody else does; whoever calls holds the lock.
Descriptor listen_at(const PipePlace& place)
{
    Descriptor listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
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

}

std::unique_ptr<MessagePipe> create_message_pipe(std::string_view name, const PipePatience& patience,
                                                 std::error_code& error)
{
    const PipePlace place(name);
    error = place.error();
    if (error)
        return nullptr;
    Descriptor lock = place.try_lock(owner_ending);
    if (!lock) {
        error = errno == EAGAIN ? make_error_code(std::errc::address_in_use) : last_error();
        return nullptr;
    }
    Descriptor listener = listen_at(place);
    if (!listener) {
        error = last_error();
        return nullptr;
    }
    return std::make_unique<SocketPipe>(std::move(lock), std::move(listener), patience);
}

bool is_pipe_owned(std::string_view name)
{
    const PipePlace place(name);
    return !place.error() && place.is_locked(owner_ending);
}

std::shared_ptr<const void> try_lock_start(std::string_view name)
{
    const PipePlace place(name);
    if (place.error())
        return nullptr;
    Descriptor lock = place.try_lock(start_ending);
    return lock ? std::make_shared<const Descriptor>(std::move(lock)) : nullptr;
}

}
