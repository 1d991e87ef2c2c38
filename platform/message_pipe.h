#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <span>
#include <string_view>
#include <system_error>

/// A pipe with a name, through which the other programs of the same user send messages to the one that owns the name.
/// A connection carries one message and no reply; the message ends where the client ends writing.
///
/// Here it is a stream socket in $XDG_RUNTIME_DIR or, where that can't be trusted, in a folder of the user's own
/// among the temporary files. Errors are the system's error numbers.
namespace platform {

/// What a read has come to.
struct PipeRead {
    std::size_t count = 0;       ///< bytes read
    bool end_of_message = false; ///< else there is more, or an error
    std::error_code error;
};

/// How long the owner waits for a client, so that none keeps it from the others.
struct PipePatience {
    std::chrono::milliseconds silence = std::chrono::seconds(10); ///< in which nothing comes
    std::chrono::milliseconds message = std::chrono::seconds(30); ///< until the whole message has come
};

/// The owner's end; its name is free again when it is closed, the object is gone, or the process. But for `close`,
/// one thread at a time.
class MessagePipe
{
public:
    virtual ~MessagePipe() = default;
    MessagePipe(const MessagePipe&) = delete;
    MessagePipe& operator=(const MessagePipe&) = delete;

    /// Waits for the next client, in the order of their coming. Those of other users are dropped; while the system
    /// has no room for a client, it waits on. `std::errc::operation_canceled` when the pipe is closed.
    virtual std::error_code connect() = 0;

    /// Fills `buffer` from the client's message. When it is full, waits to see whether the message ends there.
    /// `std::errc::timed_out` when the patience that the pipe was made with is over.
    virtual PipeRead read(std::span<char> buffer) = 0;

    /// Ends the connection; the sender takes its message for received.
    virtual void disconnect() = 0;

    /// Ends the connection; the sender learns that its message wasn't taken.
    virtual void refuse() = 0;

    /// Gives the name back: from here on senders are refused, and another program may have the name. Ends a `connect`
    /// in progress, but not a `read`. Any thread.
    virtual void close() = 0;

protected:
    MessagePipe() = default;
};

/// Takes the name, which holds no slash, and begins to listen. Null with `error` when it can't be had:
/// `std::errc::address_in_use` when another program owns it or still listens there. What a crashed owner left behind
/// is taken over.
std::unique_ptr<MessagePipe> create_message_pipe(std::string_view name, const PipePatience& patience,
                                                 std::error_code& error);

/// Sends a message and waits until the owner has taken it. `std::errc::connection_refused` when nobody listens,
/// `std::errc::connection_reset` or `std::errc::broken_pipe` when the owner drops it, `std::errc::timed_out` when the
/// owner takes nothing for `patience`.
std::error_code send_message(std::string_view name, std::string_view message, std::chrono::milliseconds patience);

/// Whether a program owns the name; it may not listen yet.
bool is_pipe_owned(std::string_view name);

/// For the one of several programs that starts the pipe's owner: null when another holds it, or it can't be had.
/// Given back when the last copy is gone, or the process.
std::shared_ptr<const void> try_lock_start(std::string_view name);

}
