#include "platform/end_requests.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace platform {

namespace {

/// Longer than the program gives itself for its end.
constexpr unsigned seconds_to_end = 20;

std::array<int, 2> ends{-1, -1};

/// Where whoever is to hear of it hangs, its own signal ends the process.
extern "C" void tell_of_request(int)
{
    const int before = errno;
    alarm(seconds_to_end);
    // Of a full pipe's requests one more tells nothing new.
    [[maybe_unused]] const ssize_t written = write(ends[1], "", 1);
    errno = before;
}

void watch(int signal)
{
    struct sigaction action {
    };

    if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
        return;
    action = {};
    action.sa_handler = tell_of_request;
    // Whoever asks again doesn't want to wait.
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    sigaction(signal, &action, nullptr);
}

}

int watch_end_requests()
{
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return -1;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        watch(signal);
    return ends[0];
}

}
