#pragma once

#include <sys/types.h>

#include <string>
#include <system_error>
#include <vector>

namespace platform {

/// A program to start: a host path, or a bare name that is looked for in $PATH, and its arguments.
struct ProgramCall {
    std::string file;
    std::vector<std::string> arguments;
};

/// What a program gets for its standard input and output; -1 is /dev/null.
struct ProgramStreams {
    int input = -1;
    int output = -1;
};

/// Starts the program in a session of its own, in the root folder, with every signal as a fresh program has it and
/// without any other descriptor; its errors go to /dev/null. Empty id (0), with `error`, when it can't be started.
/// The caller reaps it.
pid_t spawn(const ProgramCall& call, ProgramStreams streams, std::error_code& error);

}
