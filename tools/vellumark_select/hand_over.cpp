#include "vellumark_select/hand_over.h"

#include "engine/items/selection_protocol.h"
#include "platform/known_folders.h"
#include "platform/message_pipe.h"
#include "platform/start_program.h"

#include <chrono>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>

using namespace std::chrono_literals;

namespace {

using selection_protocol::pipe_name;

constexpr auto time_to_listen = 10s;
/// Longer than the application waits for clients that are slow and stand before us.
constexpr auto time_to_read = 40s;

/// It closes, or had to drop us: the next attempt may find it, or another, at its work.
bool is_worth_another_try(const std::error_code& error)
{
    return error == std::errc::connection_refused || error == std::errc::connection_reset ||
           error == std::errc::broken_pipe;
}

/// Starts the application at most once, and not while another program like this one does.
class Starter
{
public:
    /// To be called while nobody takes the message. False when the caller should look again at once.
    bool help()
    {
        if (program_) {
            if (program_->has_ended() && !platform::is_pipe_owned(pipe_name))
                throw std::runtime_error("VellumarkConfigure ended before it took the selection");
            return true;
        }
        if (platform::is_pipe_owned(pipe_name))
            return true;
        if (!lock_) {
            // By the time we have the lock its last holder may have started the application.
            lock_ = platform::try_lock_start(pipe_name);
            return !lock_;
        }
        start();
        return true;
    }

private:
    void start()
    {
        std::error_code error;
        program_ = platform::start_program(platform::program_folder() + u"\\VellumarkConfigure", error);
        if (!program_)
            throw std::runtime_error("VellumarkConfigure can't be started: " + error.message());
    }

    std::shared_ptr<const void> lock_;
    std::optional<platform::StartedProgram> program_;
};

}

void hand_over(std::string_view message)
{
    Starter starter;
    const auto end = std::chrono::steady_clock::now() + time_to_listen;
    for (;;) {
        const std::error_code error = platform::send_message(pipe_name, message, time_to_read);
        if (!error)
            return;
        const bool is_over = std::chrono::steady_clock::now() > end;
        if (is_over && error == std::errc::connection_refused)
            throw std::runtime_error("VellumarkConfigure doesn't listen");
        if (is_over || !is_worth_another_try(error))
            throw std::runtime_error("VellumarkConfigure doesn't take the selection: " + error.message());
        if (starter.help())
            std::this_thread::sleep_for(10ms);
    }
}
