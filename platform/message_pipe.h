#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <system_error>
#include <vector>

/// A pipe with a name, through which the other programs of the same user send messages to the one that owns the name.
/// A connection carries one message and no reply; the message ends where the client ends writing.
///
/// Here it is a stream socket in $XDG_RUNTIME_DIR or, where that can't be trusted, in a folder of the user's own
/// among the temporary files. Errors are the system's error numbers.
namespace platform {

/// What a pipe's owner puts up with, so that no client keeps it from the others.
struct PipeBounds {
    std::chrono::milliseconds silence = std::chrono::seconds(10); ///< in which nothing comes
    std::chrono::milliseconds message = std::chrono::seconds(30); ///< until the whole message has come
    std::size_t clients = 16;                                     ///< at once; further ones wait
    std::size_t largest_message = 8 << 20; ///< bytes that are kept; of a larger message its size alone is told
    std::size_t largest_stream = 64 << 20; ///< bytes after which a client that doesn't end is dropped
};

/// One client's message that has come to its end, or as far as it ever will.
struct PipeMessage {
    std::vector<char> bytes; ///< empty when it is too large
    std::size_t size = 0;    ///< of all that has come, in bytes
    /// Why it isn't whole: `std::errc::timed_out` or `message_size` when a bound is passed, `not_enough_memory`, or
    /// what the system tells.
    std::error_code error;

    bool is_too_large() const { return bytes.size() < size; }
};

/// The owner's end; its name is free again when it is closed, the object is gone, or the process. But for `close`,
/// one thread at a time.
class MessagePipe
{
public:
    virtual ~MessagePipe() = default;
    MessagePipe(const MessagePipe&) = delete;
    MessagePipe& operator=(const MessagePipe&) = delete;

    /// Takes the name and begins to listen; what a crashed owner left behind is taken over. While another program
    /// owns the name it waits for its turn, which `waits` hears of once, before. `std::errc::operation_canceled` when
    /// the pipe is closed, `std::errc::address_in_use` when another program listens there that doesn't own the name.
    virtual std::error_code open(const std::function<void()>& waits) = 0;

    /// Waits for the next message to come to its end; clients send theirs at the same time. Those of other users are
    /// dropped; while the system has no room for a client, that one waits on. `std::errc::operation_canceled` when
    /// the pipe is closed, and then senders whose messages are on their way are refused.
    virtual std::error_code receive(PipeMessage& message) = 0;

    /// Ends the connection that the last message came by; its sender takes it for received.
    virtual void disconnect() = 0;

    /// Ends that connection; the sender learns that its message wasn't taken.
    virtual void refuse() = 0;

    /// Gives the name, or the turn for it, back for good: from here on senders are refused, and another program may
    /// have the name. Ends a `receive` in progress, and an `open` once its turn comes. Any thread.
    virtual void close() = 0;

protected:
    MessagePipe() = default;
};

/// A pipe that isn't open yet. A good `name` holds no slash.
std::unique_ptr<MessagePipe> create_message_pipe(std::string_view name, const PipeBounds& bounds = {});

/// Sends a message and waits until the owner has taken it. `std::errc::connection_refused` when nobody listens,
/// `std::errc::connection_reset` or `std::errc::broken_pipe` when the owner drops it, `std::errc::timed_out` when the
/// owner takes nothing for `patience`.
std::error_code send_message(std::string_view name, std::string_view message, std::chrono::milliseconds patience);

/// Whether a program owns the name, or waits for its turn and will own it next; it may not listen yet.
bool is_pipe_owned(std::string_view name);

/// For the one of several programs that starts the pipe's owner: null when another holds it, or it can't be had.
/// Given back when the last copy is gone, or the process.
std::shared_ptr<const void> try_lock_start(std::string_view name);

}
