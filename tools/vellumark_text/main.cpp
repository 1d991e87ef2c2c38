#include "vellumark_text/session.h"
#include "vellumark_text/status_line.h"

#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace {

/// An interrupt ends the program at once, wherever it is: there is nothing to put in order.
extern "C" void on_interrupt(int)
{
    StatusLine::erase();
    _exit(130);
}

/// Other requests to end take their usual course once the terminal is clean.
extern "C" void on_request_to_end(int signal)
{
    StatusLine::erase();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

/// A shell starts background jobs with some signals ignored; that stays.
void handle(int signal, void (*handler)(int))
{
    if (std::signal(signal, SIG_IGN) != SIG_IGN)
        std::signal(signal, handler);
}

}

int main(int argc, char* argv[])
{
    handle(SIGINT, on_interrupt);
    handle(SIGTERM, on_request_to_end);
    handle(SIGHUP, on_request_to_end);
    Session session;
    const int status = session.run(argc, argv);
    // Taking a selection of millions of items apart takes longer than the system needs to take the memory back.
    std::quick_exit(status);
}
