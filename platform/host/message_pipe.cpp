#include "platform/message_pipe.h"

#include "platform/host/pipe_client.h"
#include "platform/host/pipe_listener.h"
#include "platform/host/pipe_place.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace platform {

namespace {

using Clock = PipeClient::Clock;

/// At most what a poll takes.
int milliseconds_until(Clock::time_point end)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
    return static_cast<int>(std::clamp<decltype(left)>(left, 0, std::numeric_limits<int>::max()));
}

void refuse_at(int client)
{
    // Nobody to tell it to is as good.
    send(client, "", 1, MSG_NOSIGNAL | MSG_DONTWAIT);
}

class SocketPipe final : public MessagePipe
{
public:
    SocketPipe(std::string_view name, const PipeBounds& bounds) : bounds_(bounds), listener_(name)
    {
        clients_.reserve(bounds.clients);
        polled_.reserve(bounds.clients + 1);
    }

    /// A client whose end is all that it hears takes its message for read.
    ~SocketPipe() override { refuse_all(); }

    SocketPipe(const SocketPipe&) = delete;
    SocketPipe& operator=(const SocketPipe&) = delete;

    std::error_code open(const std::function<void()>& waits) override { return listener_.open(waits); }

    std::error_code receive(PipeMessage& message) override
    {
        for (;;) {
            wait();
            if (listener_.is_closed()) {
                refuse_all();
                return make_error_code(std::errc::operation_canceled);
            }
            // Closed in between, it goes the way above.
            if (const std::error_code error = take_clients(); error && !listener_.is_closed())
                return error;
            if (take_message(message))
                return {};
        }
    }

    void disconnect() override { current_ = Descriptor(); }

    void refuse() override
    {
        refuse_at(current_.get());
        disconnect();
    }

    void close() override { listener_.close(); }

private:
    bool has_room() const { return clients_.size() < bounds_.clients; }

    /// Until there may be something to do.
    void wait()
    {
        // Without room only the end of listening is told.
        polled_.assign({{listener_.socket(), static_cast<short>(has_room() ? POLLIN : 0), 0}});
        auto end = Clock::time_point::max();
        for (const PipeClient& client : clients_) {
            polled_.push_back({client.socket(), POLLIN, 0});
            end = std::min(end, client.end());
        }
        poll(polled_.data(), polled_.size(), clients_.empty() ? -1 : milliseconds_until(end));
    }

    std::error_code take_clients()
    {
        std::error_code error;
        while (has_room()) {
            Descriptor client = listener_.accept(error);
            if (!client)
                break;
            clients_.emplace_back(std::move(client), bounds_);
        }
        return error;
    }

    /// False when none has come to its end.
    bool take_message(PipeMessage& message)
    {
        const auto client = std::ranges::find_if(clients_, [&](PipeClient& c) { return c.advance(buffer_); });
        if (client == clients_.end())
            return false;
        current_ = client->finish(message);
        clients_.erase(client);
        return true;
    }

    void refuse_all()
    {
        for (const PipeClient& client : clients_)
            refuse_at(client.socket());
        clients_.clear();
    }

    const PipeBounds bounds_;
    PipeListener listener_;
    std::vector<PipeClient> clients_; ///< in the order of their coming
    std::vector<pollfd> polled_;
    std::array<char, 65536> buffer_{};
    Descriptor current_;
};

}

std::unique_ptr<MessagePipe> create_message_pipe(std::string_view name, const PipeBounds& bounds)
{
    return std::make_unique<SocketPipe>(name, bounds);
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
