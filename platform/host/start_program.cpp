#include "platform/start_program.h"

#include "platform/paths.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <string>

namespace platform {

namespace {

/// What the child does before it becomes the program.
class ChildSetup
{
public:
    ChildSetup()
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
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
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

}

bool StartedProgram::has_ended()
{
    if (!has_ended_) {
        const pid_t id = static_cast<pid_t>(id_);
        has_ended_ = waitpid(id, nullptr, WNOHANG) == id;
    }
    return has_ended_;
}

std::optional<StartedProgram> start_program(std::u16string_view file, std::error_code& error)
{
    std::string path = to_host_path(file);
    const std::array<char*, 2> arguments{path.data(), nullptr};
    const ChildSetup setup;
    pid_t id = 0;
    const int failure =
        posix_spawn(&id, path.c_str(), setup.actions(), setup.attributes(), arguments.data(), environ);
    error = {failure, std::generic_category()};
    return failure == 0 ? std::optional(StartedProgram(id)) : std::nullopt;
}

}
