#include "vellumark_text/session.h"
#include "vellumark_text/status_line.h"

#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace {

/// An interrupt ends the program at once, wherever it is: there is nothing to put in order, and no text is written.
extern "C" void on_interrupt(int)
{
    if (isatty(STDERR_FILENO))
        StatusLine::erase();
    _exit(130);
}

}

int main(int argc, char* argv[])
{
    // A shell starts background jobs with interrupts ignored; that stays.
    if (std::signal(SIGINT, SIG_IGN) != SIG_IGN)
        std::signal(SIGINT, on_interrupt);
    Session session;
    const int status = session.run(argc, argv);
    // Taking a selection of millions of items apart takes longer than the system needs to take the memory back.
    std::quick_exit(status);
}
