#pragma once

#include "engine/items/selection_protocol.h"
#include "platform/message_pipe.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// Receives messages on a named pipe, on a thread of its own that serves one client after the other until the process
/// or delivery ends, or the pipe can't be made. What fails is told by debug output alone.
class NamedPipeServer
{
public:
    NamedPipeServer(const NamedPipeServer&) = delete;
    NamedPipeServer& operator=(const NamedPipeServer&) = delete;

    /// The pipe's name, without what the system puts in front.
    virtual std::string pipe_name() const = 0;

    /// A whole message. On the pipe's thread.
    virtual void message_received(const std::vector<char>& message) = 0;

    /// A message of more than `largest_message` bytes was sent; none of it was kept. On the pipe's thread.
    virtual void message_too_large(std::size_t size) = 0;

    /// Starts the thread; once. A client that is slower than `patience` allows is dropped.
    /// Throws std::runtime_error ("CreateThread() failed with error N") when there can be no thread.
    void start(const platform::PipePatience& patience = {});

    /// From here on the thread leaves this object alone and senders are refused; another program may have the pipe's
    /// name. Waits for a call in progress. Every class that can be destroyed calls it first in its destructor.
    void end_delivery();

    static constexpr std::size_t largest_message = selection_protocol::largest_message;
    /// Where a client that doesn't end its message is dropped.
    static constexpr std::size_t largest_stream = 64 << 20;

protected:
    NamedPipeServer();
    ~NamedPipeServer();

private:
    class Receiver;
    std::shared_ptr<Receiver> receiver_; ///< shared with the thread
};
