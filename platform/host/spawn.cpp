#include "platform/host/spawn.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace platform {

namespace {

/// What the child does before it becomes the program.
class ChildSetup
{
public:
    ChildSetup(SpawnPlace place, int socket)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawnattr_init(&attributes_);
        choose_descriptors(socket);
        if (place == SpawnPlace::OwnSession)
            posix_spawn_file_actions_addchdir_np(&actions_, "/");
        sigset_t none, all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        const int apart = place == SpawnPlace::OwnSession ? POSIX_SPAWN_SETSID : POSIX_SPAWN_SETPGROUP;
        posix_spawnattr_setflags(&attributes_,
                                 static_cast<short>(apart | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF));
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
    void choose_descriptors(int socket)
    {
        // First of all: the socket may have the number of a standard stream.
        if (socket >= 0)
            posix_spawn_file_actions_adddup2(&actions_, socket, socket_of_spawned);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&actions_, stream, "/dev/null", O_RDWR, 0);
        posix_spawn_file_actions_addclosefrom_np(&actions_, socket >= 0 ? socket_of_spawned + 1 : STDERR_FILENO + 1);
    }

    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

}

int spawn(pid_t& id, std::string file, SpawnPlace place, int socket)
{
    const std::array<char*, 2> arguments{file.data(), nullptr};
    const ChildSetup setup(place, socket);
    return posix_spawn(&id, file.c_str(), setup.actions(), setup.attributes(), arguments.data(), environ);
}

}
