#pragma once

#include "platform/host/descriptor.h"
#include "platform/message_pipe.h"

#include <chrono>
#include <span>

namespace platform {

/// One client of a message pipe, and what has come of its message.
class PipeClient
{
public:
    using Clock = std::chrono::steady_clock;

    PipeClient(Descriptor socket, const PipeBounds& bounds) : socket_(std::move(socket)), bounds_(&bounds) {}

    int socket() const { return socket_.get(); }

    /// When it is given up, unless something comes.
    Clock::time_point end() const;

    /// Takes some of what has come, by way of `buffer`, and waits for nothing. True when no more is to come.
    bool advance(std::span<char> buffer);

    /// Hands over the message that has come, and the connection.
    Descriptor finish(PipeMessage& message);

private:
    void keep(std::span<const char> bytes);

    Descriptor socket_;
    const PipeBounds* bounds_;
    PipeMessage message_;
    Clock::time_point start_ = Clock::now(), heard_ = start_;
};

}
