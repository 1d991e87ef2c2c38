#include "platform/host/properties/helper_process.h"

#include <fcntl.h>
#include <spawn.h>
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

constexpr int socket_of_helper = 3;

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

/// How the helper begins: only the socket and empty standard streams, no blocked or ignored signal, and out of
/// reach of the interrupt key, which is meant for the program itself.
class Beginning
{
public:
    explicit Beginning(int socket)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawnattr_init(&attributes_);
        // First of all: the socket may have the number of a standard stream.
        posix_spawn_file_actions_adddup2(&actions_, socket, socket_of_helper);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&actions_, stream, "/dev/null", O_RDWR, 0);
        posix_spawn_file_actions_addclosefrom_np(&actions_, socket_of_helper + 1);
        sigset_t none, all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setflags(&attributes_,
                                 POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }

    ~Beginning()
    {
        posix_spawn_file_actions_destroy(&actions_);
        posix_spawnattr_destroy(&attributes_);
    }

    Beginning(const Beginning&) = delete;
    Beginning& operator=(const Beginning&) = delete;

    /// 0 when the program can't be started.
    pid_t spawn(std::string program) const
    {
        const std::array<char*, 2> arguments{program.data(), nullptr};
        pid_t id = 0;
        const int error = posix_spawn(&id, program.c_str(), &actions_, &attributes_, arguments.data(), environ);
        return error == 0 ? id : 0;
    }

private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

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
    const pid_t id = Beginning(theirs.get()).spawn(program);
    return id > 0 ? HelperProcess(id, std::move(ours)) : HelperProcess();
}

}
