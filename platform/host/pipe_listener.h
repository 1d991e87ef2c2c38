#pragma once

#include "platform/host/descriptor.h"
#include "platform/host/pipe_place.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <system_error>

namespace platform {

/// Owns a message pipe's name, and the socket at which its clients arrive. But for `close` and `is_closed`, one
/// thread at a time.
class PipeListener
{
public:
    explicit PipeListener(std::string_view name) : name_(name) {}

    /// As `MessagePipe::open`.
    std::error_code open(const std::function<void()>& waits);

    /// As `MessagePipe::close`. The socket can be read from then on.
    void close();

    bool is_closed() const { return is_closed_; }

    /// Can be read when a client has arrived.
    int socket() const { return listener_.get(); }

    /// The next client of this user's, and none when there is no more at the moment; `error` is the pipe's end.
    Descriptor accept(std::error_code& error) const;

private:
    void keep(Descriptor& member, Descriptor value);
    std::error_code take_name(const std::function<void()>& waits);
    bool take_lock(const PipePlace& place, const std::function<void()>& waits);

    const std::string name_;
    std::mutex mutex_; ///< for what `close` looks at
    Descriptor lock_;
    Descriptor listener_;
    std::atomic<bool> is_closed_ = false;
};

}
