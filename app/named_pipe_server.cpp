#include "app/named_pipe_server.h"

#include "platform/debug_output.h"

#include <cstdio>
#include <exception>
#include <mutex>
#include <stdexcept>
#include <system_error>
#include <thread>

namespace {

void log_failure(const char* call, const std::error_code& error)
{
    std::string code(8, '\0');
    std::snprintf(code.data(), code.size() + 1, "%08x", static_cast<unsigned>(error.value()));
    platform::debug_output(std::string("NamedPipeServer error: ") + call + "; Error=0x" + code + "\n");
}

}

/// What the pipe's thread works with. It lives as long as the thread, and reaches the server while there is one.
class NamedPipeServer::Receiver
{
public:
    explicit Receiver(NamedPipeServer& server) : server_(&server) {}

    /// Before the thread.
    void create_pipe(const std::string& name, const platform::PipeBounds& bounds)
    {
        pipe_ = platform::create_message_pipe(name, bounds);
    }

    /// The thread: serves clients until delivery ends or the pipe can't be had.
    void run()
    {
        while (open_pipe())
            while (serve_client()) {
            }
    }

    void end_delivery()
    {
        const std::lock_guard lock(mutex_);
        server_ = nullptr;
        if (pipe_)
            pipe_->close();
    }

private:
    bool open_pipe()
    {
        const auto log = [](const std::error_code& error) { log_failure("CreateNamedPipe() failed", error); };
        const std::error_code error = pipe_->open([&] { log(make_error_code(std::errc::address_in_use)); });
        if (error && error != std::errc::operation_canceled)
            log(error);
        return !error;
    }

    /// False when the pipe is of no more use.
    bool serve_client()
    {
        platform::PipeMessage message;
        if (const std::error_code error = pipe_->receive(message)) {
            if (error != std::errc::operation_canceled)
                log_failure("ConnectNamedPipe() failed", error);
            return false;
        }
        if (is_taken(message))
            pipe_->disconnect();
        else
            pipe_->refuse();
        return true;
    }

    bool is_taken(const platform::PipeMessage& message)
    {
        if (message.error) {
            log_failure("ReadFile() failed", message.error);
            return false;
        }
        try {
            return deliver(message);
        } catch (const std::exception& error) {
            // Mostly a lack of memory for a large message, which the next one need not meet.
            platform::debug_output(std::string("NamedPipeServer error: message lost; ") + error.what() + "\n");
            return false;
        }
    }

    bool deliver(const platform::PipeMessage& message)
    {
        const std::lock_guard lock(mutex_);
        if (!server_)
            return false;
        if (message.is_too_large())
            server_->message_too_large(message.size);
        else
            server_->message_received(message.bytes);
        return true;
    }

    std::mutex mutex_;
    NamedPipeServer* server_;
    std::unique_ptr<platform::MessagePipe> pipe_;
};

NamedPipeServer::NamedPipeServer() : receiver_(std::make_shared<Receiver>(*this)) {}

void NamedPipeServer::start(const platform::PipeBounds& bounds)
{
    receiver_->create_pipe(pipe_name(), bounds);
    try {
        std::thread([receiver = receiver_] { receiver->run(); }).detach();
    } catch (const std::system_error& error) {
        throw std::runtime_error("CreateThread() failed with error " + std::to_string(error.code().value()));
    }
}

void NamedPipeServer::end_delivery()
{
    receiver_->end_delivery();
}
