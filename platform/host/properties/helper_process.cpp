#include "platform/host/properties/helper_process.h"

#include "platform/host/spawn.h"

#include <sys/socket.h>
#include <sys/wait.h>

#include <array>
#include <chrono>
#include <csignal>
#include <mutex>
#include <thread>
#include <vector>

namespace platform {

namespace {

/// True when the process is gone and has left no zombie, whoever reaped it.
bool is_reaped(pid_t id)
{
    return waitpid(id, nullptr, WNOHANG) != 0;
}

/// Killed processes that were not dead yet: one that waits for a silent disk or server dies only when that answers.
class Remains
{
public:
    void add(pid_t id)
    {
        const std::lock_guard lock(mutex_);
        ids_.push_back(id);
    }

    void reap()
    {
        const std::lock_guard lock(mutex_);
        std::erase_if(ids_, is_reaped);
    }

private:
    std::mutex mutex_;
    std::vector<pid_t> ids_;
};

Remains& remains()
{
    // Never destroyed: other threads may be at work until the very end of the program.
    static auto* const instance = new Remains;
    return *instance;
}

void end(pid_t id)
{
    using namespace std::chrono_literals;
    // A reaped process's number can be another's already.
    if (is_reaped(id))
        return;
    kill(id, SIGKILL);
    for (const auto deadline = std::chrono::steady_clock::now() + 100ms;
         std::chrono::steady_clock::now() < deadline;) {
        if (is_reaped(id))
            return;
        std::this_thread::sleep_for(200us);
    }
    remains().add(id);
}

}

HelperProcess::HelperProcess(pid_t id, Descriptor socket) : id_(id), socket_(std::move(socket)) {}

HelperProcess::HelperProcess(HelperProcess&& other) noexcept
    : id_(std::exchange(other.id_, 0)), socket_(std::move(other.socket_))
{}

HelperProcess& HelperProcess::operator=(HelperProcess&& other) noexcept
{
    std::swap(id_, other.id_);
    socket_ = std::move(other.socket_);
    return *this;
}

HelperProcess::~HelperProcess()
{
    if (id_ > 0)
        end(id_);
}

HelperProcess HelperProcess::start(const std::string& program)
{
    remains().reap();
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return {};
    Descriptor ours(ends[0]);
    const Descriptor theirs(ends[1]);
    std::error_code error;
    const pid_t id = spawn({program, {}}, {.socket = theirs.get()}, error);
    return id != 0 ? HelperProcess(id, std::move(ours)) : HelperProcess();
}

}
