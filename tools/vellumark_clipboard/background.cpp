#include "vellumark_clipboard/background.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

BackgroundProcess::BackgroundProcess()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return;
    const bool has_own_session = getsid(0) == getpid();
    const pid_t child = fork();
    is_foreground_ = child != 0;
    report_ = ends[is_foreground_ ? 0 : 1];
    close(ends[is_foreground_ ? 1 : 0]);
    if (!is_foreground_)
        go_to_background(has_own_session);
}

BackgroundProcess::~BackgroundProcess()
{
    if (report_ >= 0)
        close(report_);
}

void BackgroundProcess::go_to_background(bool has_own_session)
{
    // A caller that has given the foreground process a session of its own can still end both until it has an answer.
    if (!has_own_session)
        setsid();
    std::signal(SIGHUP, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

int BackgroundProcess::wait_for_report() const
{
    char report = 0;
    ssize_t count = -1;
    do
        count = report_ >= 0 ? read(report_, &report, 1) : 0;
    while (count < 0 && errno == EINTR);
    return count == 1 ? 0 : 1;
}

bool BackgroundProcess::report_success()
{
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    if (nothing < 0 || chdir("/") != 0)
        return false;
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (dup2(nothing, stream) < 0)
            return false;
    close(nothing);
    const bool is_heard = write(report_, "+", 1) == 1;
    close(std::exchange(report_, -1));
    return is_heard;
}
