#pragma once

#include "engine/items/selection_protocol.h"
#include "platform/message_pipe.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// Receives messages on a named pipe, on a thread of its own that serves its clients until the process or delivery
/// ends, or the pipe can't be made. While another program has the pipe it waits for its turn. What fails is told by
/// debug output alone. Made as `Serving<...>`.
class NamedPipeServer
{
public:
    virtual ~NamedPipeServer() = default;
    NamedPipeServer(const NamedPipeServer&) = delete;
    NamedPipeServer& operator=(const NamedPipeServer&) = delete;

    /// The pipe's name, without what the system puts in front.
    virtual std::string pipe_name() const = 0;

    /// A whole message; they come in the order in which they became whole. On the pipe's thread.
    virtual void message_received(const std::vector<char>& message) = 0;

    /// A message of more than `largest_message` bytes was sent; none of it was kept. On the pipe's thread.
    virtual void message_too_large(std::size_t size) = 0;

    /// Starts the thread; once. A client that goes beyond `bounds` is dropped.
    /// Throws std::runtime_error ("CreateThread() failed with error N") when there can be no thread.
    void start(const platform::PipeBounds& bounds = {.largest_message = selection_protocol::largest_message});

    /// From here on the thread leaves this object alone and senders are refused; another program may have the pipe's
    /// name. Waits for a call in progress.
    void end_delivery();

protected:
    NamedPipeServer();

private:
    /// `Serving` alone has it, so that no server is made without.
    virtual void is_served() = 0;

    class Receiver;
    std::shared_ptr<Receiver> receiver_; ///< shared with the thread
};

/// A kind of NamedPipeServer that can be made: the pipe's thread has let go of it before any of it goes.
template <typename Server>
class Serving final : public Server
{
public:
    using Server::Server;

    ~Serving() override { this->end_delivery(); }

private:
    void is_served() override {}
};
