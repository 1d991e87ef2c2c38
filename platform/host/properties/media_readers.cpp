#include "platform/host/properties/media_readers.h"

#include "platform/host/program_file.h"
#include "platform/host/properties/media_messages.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>

namespace platform {

namespace {

using Clock = std::chrono::steady_clock;

enum class Outcome { Answered, Ended, Silent };

bool wait_for_message(int socket, Clock::time_point deadline)
{
    for (;;) {
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd entry{socket, POLLIN, 0};
        const int ready = rest > 0 ? poll(&entry, 1, static_cast<int>(rest)) : 0;
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

/// Takes the answers up to the one that ends them. Whatever else comes is as good as silence.
Outcome receive(int socket, Clock::time_point deadline, MediaTexts& texts)
{
    constexpr std::size_t most_answers = 1000;
    std::vector<char> buffer(longest_media_message);
    while (texts.size() < most_answers) {
        if (!wait_for_message(socket, deadline))
            return Outcome::Silent;
        const ssize_t count = recv(socket, buffer.data(), buffer.size(), MSG_DONTWAIT);
        if (count <= 0)
            return Outcome::Ended;
        const std::string_view message(buffer.data(), static_cast<std::size_t>(count));
        if (message == end_of_media_answers)
            return Outcome::Answered;
        const std::size_t end_of_name = message.find('\0');
        if (end_of_name == message.npos)
            return Outcome::Silent;
        const auto [place, is_new] = texts.emplace(message.substr(0, end_of_name), message.substr(end_of_name + 1));
        if (!is_new)
            return Outcome::Silent;
    }
    return Outcome::Silent;
}

}

MediaTexts MediaReaders::ask(int file, std::string_view fields)
{
    const auto deadline = Clock::now() + longest_wait;
    HelperProcess process = take_idle();
    for (const bool is_used : {static_cast<bool>(process), false}) {
        if (!is_used)
            process = HelperProcess::start(program_);
        if (!process)
            return {};
        MediaTexts texts;
        const Outcome outcome = send_media_request(process.socket(), file, fields)
                                    ? receive(process.socket(), deadline, texts)
                                    : Outcome::Ended;
        if (outcome == Outcome::Answered) {
            put_back(std::move(process));
            return texts;
        }
        // A used program can have died of what an earlier file left in it, or by another's hand.
        if (!is_used || outcome != Outcome::Ended)
            return {};
    }
    return {};
}

HelperProcess MediaReaders::take_idle()
{
    const std::lock_guard lock(mutex_);
    if (idle_.empty())
        return {};
    HelperProcess process = std::move(idle_.back());
    idle_.pop_back();
    return process;
}

void MediaReaders::put_back(HelperProcess process)
{
    constexpr std::size_t most_idle = 4;
    const std::lock_guard lock(mutex_);
    if (idle_.size() < most_idle)
        idle_.push_back(std::move(process));
}

MediaReaders& media_readers()
{
    // Never destroyed, for the threads that outlive main; the programs end when our ends of their sockets go.
    static auto* const readers = new MediaReaders(host_program_folder() + "/vellumark-media-reader");
    return *readers;
}

}
