#include "platform/start_program.h"

#include "platform/host/spawn.h"
#include "platform/paths.h"

#include <sys/wait.h>

namespace platform {

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
    pid_t id = 0;
    const int failure = spawn(id, to_host_path(file), SpawnPlace::OwnSession);
    error = {failure, std::generic_category()};
    return failure == 0 ? std::optional(StartedProgram(id)) : std::nullopt;
}

}
