#include "app/named_pipe_server.h"

#include "app/incoming_message.h"
#include "platform/debug_output.h"

#include <algorithm>
#include <cassert>
#include <cstdio>
#include <exception>
#include <mutex>
#include <optional>
#include <span>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <utility>

namespace {

constexpr std::size_t first_chunk = 8192, largest_chunk = 8 << 20;

void log_failure(const char* call, const std::error_code& error)
{
    std::string code(8, '\0');
    std::snprintf(code.data(), code.size() + 1, "%08x", static_cast<unsigned>(error.value()));
    platform::debug_output(std::string("NamedPipeServer error: ") + call + "; Error=0x" + code + "\n");
}

/// The connected client's whole message; empty after a failure, which has been logged.
std::optional<IncomingMessage> read_message(platform::MessagePipe& pipe)
{
    IncomingMessage message(NamedPipeServer::largest_message);
    for (std::vector<char> chunk(first_chunk);; chunk.resize(std::min(2 * chunk.size(), largest_chunk))) {
        platform::PipeRead read = pipe.read(chunk);
        message.append(std::span(chunk).first(read.count));
        if (!read.error && message.size() > NamedPipeServer::largest_stream)
            read.error = make_error_code(std::errc::message_size);
        if (read.error) {
            log_failure("ReadFile() failed", read.error);
            return std::nullopt;
        }
        if (read.end_of_message)
            return message;
    }
}

}

/// What the pipe's thread works with. It lives as long as the thread, and reaches the server while there is one.
class NamedPipeServer::Receiver
{
public:
    explicit Receiver(NamedPipeServer& server) : server_(&server) {}

    /// The thread: serves clients until delivery ends or the pipe can't be made.
    void run(const std::string& name, const platform::PipePatience& patience)
    {
        std::error_code error;
        while (const auto pipe = platform::create_message_pipe(name, patience, error)) {
            if (!set_pipe(pipe.get()))
                return;
            while (serve_client(*pipe)) {
            }
            if (!set_pipe(nullptr))
                return;
        }
        log_failure("CreateNamedPipe() failed", error);
    }

    void end_delivery()
    {
        const std::lock_guard lock(mutex_);
        server_ = nullptr;
        if (pipe_)
            pipe_->close();
    }

    bool delivers()
    {
        const std::lock_guard lock(mutex_);
        return server_ != nullptr;
    }

private:
    /// What `end_delivery` closes. False when that is over, and none is to be served any more.
    bool set_pipe(platform::MessagePipe* pipe)
    {
        const std::lock_guard lock(mutex_);
        pipe_ = server_ ? pipe : nullptr;
        return server_ != nullptr;
    }

    /// False when the pipe is of no more use.
    bool serve_client(platform::MessagePipe& pipe)
    {
        if (const std::error_code error = pipe.connect()) {
            if (error != std::errc::operation_canceled)
                log_failure("ConnectNamedPipe() failed", error);
            return false;
        }
        if (is_taken(pipe))
            pipe.disconnect();
        else
            pipe.refuse();
        return true;
    }

    /// Reads and delivers the client's message.
    bool is_taken(platform::MessagePipe& pipe)
    {
        try {
            const auto message = read_message(pipe);
            return message && deliver(*message);
        } catch (const std::exception& error) {
            // Mostly a lack of memory for a large message, which the next one need not meet.
            platform::debug_output(std::string("NamedPipeServer error: message lost; ") + error.what() + "\n");
            return false;
        }
    }

    bool deliver(const IncomingMessage& message)
    {
        const std::lock_guard lock(mutex_);
        if (!server_)
            return false;
        if (message.is_too_large())
            server_->message_too_large(message.size());
        else
            server_->message_received(message.bytes());
        return true;
    }

    std::mutex mutex_;
    NamedPipeServer* server_;
    platform::MessagePipe* pipe_ = nullptr;
};

NamedPipeServer::NamedPipeServer() : receiver_(std::make_shared<Receiver>(*this)) {}

NamedPipeServer::~NamedPipeServer()
{
    assert(!receiver_->delivers());
}

void NamedPipeServer::start(const platform::PipePatience& patience)
{
    try {
        std::thread([receiver = receiver_, name = pipe_name(), patience] { receiver->run(name, patience); }).detach();
    } catch (const std::system_error& error) {
        throw std::runtime_error("CreateThread() failed with error " + std::to_string(error.code().value()));
    }
}

void NamedPipeServer::end_delivery()
{
    receiver_->end_delivery();
}
