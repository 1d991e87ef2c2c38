#include "platform/host/helper_program.h"

#include "platform/host/descriptor.h"

#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>

namespace platform {

namespace {

/// The status that a process ended with, without reaping it: until then its number names nothing else.
bool has_succeeded(pid_t id)
{
    siginfo_t end{};
    return waitid(P_PID, static_cast<id_t>(id), &end, WEXITED | WNOWAIT) == 0 && end.si_code == CLD_EXITED &&
           end.si_status == 0;
}

/// A descriptor that can be read when the process has ended. Debian 12's header declares the C library's own call in
/// a way that C++ can't link.
Descriptor end_of_process(pid_t id)
{
    return Descriptor(static_cast<int>(syscall(SYS_pidfd_open, id, 0)));
}

/// A launcher may hand down that ends of children are ignored; then nobody could learn how they ended.
void keep_ends_of_children()
{
    struct sigaction action = {};
    if (sigaction(SIGCHLD, nullptr, &action) == 0 && action.sa_handler == SIG_IGN)
        std::signal(SIGCHLD, SIG_DFL);
}

void reap(pid_t id)
{
    while (waitpid(id, nullptr, 0) < 0 && errno == EINTR) {
    }
}

}

bool wait_readable(int descriptor, Deadline deadline)
{
    using std::chrono::milliseconds;
    for (;;) {
        const auto left = std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now());
        pollfd wanted{descriptor, POLLIN, 0};
        const int found = poll(&wanted, 1, static_cast<int>(std::max(left, milliseconds(0)).count()));
        if (found >= 0 || errno != EINTR)
            return found > 0;
    }
}

HelperProgram::HelperProgram(const ProgramCall& call, ProgramStreams streams)
{
    keep_ends_of_children();
    std::error_code error;
    id_ = spawn(call, streams, error);
}

HelperProgram::~HelperProgram()
{
    if (id_ == 0)
        return;
    kill(-id_, SIGKILL);
    reap(id_);
}

bool HelperProgram::succeeds(Deadline deadline)
{
    if (id_ == 0)
        return false;
    const Descriptor process = end_of_process(id_);
    if (!process || !wait_readable(process.get(), deadline) || !has_succeeded(id_))
        return false;
    reap(id_);
    id_ = 0;
    return true;
}

}
