#include "platform/host/pipe_client.h"

#include "platform/host/pipe_place.h"

#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <new>
#include <utility>

namespace platform {

PipeClient::Clock::time_point PipeClient::end() const
{
    return std::min(heard_ + bounds_->silence, start_ + bounds_->message);
}

bool PipeClient::advance(std::span<char> buffer)
{
    const ssize_t got = recv(socket(), buffer.data(), buffer.size(), MSG_DONTWAIT);
    if (got == 0)
        return true;
    if (got > 0)
        keep(buffer.first(static_cast<std::size_t>(got)));
    else if (errno != EAGAIN && errno != EINTR)
        message_.error = last_error();
    if (!message_.error && Clock::now() >= end())
        message_.error = make_error_code(std::errc::timed_out);
    return static_cast<bool>(message_.error);
}

void PipeClient::keep(std::span<const char> bytes)
{
    heard_ = Clock::now();
    message_.size += bytes.size();
    if (message_.size > bounds_->largest_stream)
        message_.error = make_error_code(std::errc::message_size);
    if (message_.size > bounds_->largest_message) {
        std::vector<char>().swap(message_.bytes);
        return;
    }
    try {
        message_.bytes.insert(message_.bytes.end(), bytes.begin(), bytes.end());
    } catch (const std::bad_alloc&) {
        message_.error = make_error_code(std::errc::not_enough_memory);
    }
}

Descriptor PipeClient::finish(PipeMessage& message)
{
    message = std::move(message_);
    return std::move(socket_);
}

}
