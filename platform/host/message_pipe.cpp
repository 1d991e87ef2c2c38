#include "platform/message_pipe.h"

#include "platform/host/pipe_place.h"
#include "platform/host/sockets.h"

#include <sys/socket.h>
#include <sys/stat.h>

#include <cerrno>

namespace platform {

namespace {

constexpr std::string_view owner_ending = ".lock", start_ending = ".start";

bool is_other_user(const Descriptor& socket)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 || peer.uid != geteuid();
}

Descriptor accept_next(const Descriptor& listener)
{
    for (;;) {
        Descriptor client(accept4(listener.get(), nullptr, nullptr, SOCK_CLOEXEC));
        if (client || (errno != EINTR && errno != ECONNABORTED))
            return client;
    }
}

class SocketPipe final : public MessagePipe
{
public:
    SocketPipe(Descriptor lock, Descriptor listener, std::chrono::milliseconds patience)
        : lock_(std::move(lock)), listener_(std::move(listener)), patience_(patience)
    {}

    std::error_code connect() override
    {
        Descriptor client = accept_next(listener_);
        if (!client)
            return last_error();
        if (is_other_user(client))
            return make_error_code(std::errc::permission_denied);
        if (!set_timeout(client, SO_RCVTIMEO, patience_))
            return last_error();
        client_ = std::move(client);
        return {};
    }

    PipeRead read(std::span<char> buffer) override
    {
        PipeRead result;
        while (result.count < buffer.size()) {
            const ssize_t got = receive(client_, buffer.subspan(result.count), 0);
            if (got < 0)
                return {result.count, false, last_error()};
            if (got == 0)
                return {result.count, true, {}};
            result.count += static_cast<std::size_t>(got);
        }
        char next = 0;
        const ssize_t more = receive(client_, {&next, 1}, MSG_PEEK);
        return {result.count, more == 0, more < 0 ? last_error() : std::error_code()};
    }

    void disconnect() override { client_ = Descriptor(); }

private:
    Descriptor lock_;
    Descriptor listener_;
    Descriptor client_;
    std::chrono::milliseconds patience_;
};

/// Listens where nobody else does; whoever calls holds the lock.
Descriptor listen_at(const PipePlace& place)
{
    Descriptor listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const sockaddr_un address = place.address();
    place.remove_socket();
    // The mode is set before the socket has a name, so that it never stands there with another.
    if (listener && fchmod(listener.get(), S_IRUSR | S_IWUSR) == 0 && bind_to(listener, address) &&
        listen(listener.get(), SOMAXCONN) == 0)
        return listener;
    return Descriptor();
}

}

std::unique_ptr<MessagePipe> create_message_pipe(std::string_view name, std::chrono::milliseconds patience,
                                                 std::error_code& error)
{
    const PipePlace place(name);
    error = place.error();
    if (error)
        return nullptr;
    Descriptor lock = place.open_lock(owner_ending);
    if (!lock || !try_lock(lock)) {
        error = lock && errno == EAGAIN ? make_error_code(std::errc::address_in_use) : last_error();
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
    if (place.error())
        return false;
    const Descriptor lock = place.open_lock(owner_ending);
    return lock && is_locked(lock);
}

std::shared_ptr<const void> try_lock_start(std::string_view name)
{
    const PipePlace place(name);
    if (place.error())
        return nullptr;
    auto lock = std::make_shared<const Descriptor>(place.open_lock(start_ending));
    return *lock && try_lock(*lock) ? lock : nullptr;
}

}
