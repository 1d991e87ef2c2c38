#include "platform/host/spawn.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <csignal>

namespace platform {

namespace {

/// What the child does before it becomes the program.
class ChildSetup
{
public:
    explicit ChildSetup(ProgramStreams streams)
    {
        posix_spawn_file_actions_init(&actions_);
        // First of all: the socket may have the number of a standard stream.
        if (streams.socket >= 0)
            posix_spawn_file_actions_adddup2(&actions_, streams.socket, socket_of_program);
        put(streams.input, STDIN_FILENO, O_RDONLY);
        put(streams.output, STDOUT_FILENO, O_WRONLY);
        put(-1, STDERR_FILENO, O_WRONLY);
        posix_spawn_file_actions_addclosefrom_np(&actions_,
                                                 (streams.socket >= 0 ? socket_of_program : STDERR_FILENO) + 1);
        posix_spawn_file_actions_addchdir_np(&actions_, "/");
        sigset_t all{}, none{};
        sigfillset(&all);
        sigemptyset(&none);
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }

    ~ChildSetup()
    {
        posix_spawnattr_destroy(&attributes_);
        posix_spawn_file_actions_destroy(&actions_);
    }

    ChildSetup(const ChildSetup&) = delete;
    ChildSetup& operator=(const ChildSetup&) = delete;

    const posix_spawn_file_actions_t* actions() const { return &actions_; }

    const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    void put(int source, int target, int mode)
    {
        if (source < 0)
            posix_spawn_file_actions_addopen(&actions_, target, "/dev/null", mode, 0);
        else
            posix_spawn_file_actions_adddup2(&actions_, source, target);
    }

    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

}

pid_t spawn(const ProgramCall& call, ProgramStreams streams, std::error_code& error)
{
    ProgramCall own = call;
    std::vector<char*> arguments{own.file.data()};
    for (std::string& argument : own.arguments)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    const ChildSetup setup(streams);
    pid_t id = 0;
    const int failure =
        posix_spawnp(&id, own.file.c_str(), setup.actions(), setup.attributes(), arguments.data(), environ);
    error = {failure, std::generic_category()};
    return failure == 0 ? id : 0;
}

}
