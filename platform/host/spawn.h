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

/// The descriptors that a program gets. Its standard input and output, -1 for /dev/null; and a socket to its caller
/// as descriptor 3, -1 for none. A caller gives streams or a socket, not both.
struct ProgramStreams {
    int input = -1;
    int output = -1;
    int socket = -1;
};

inline constexpr int socket_of_program = 3;

/// Starts the program in a session of its own, in the root folder, with every signal as a fresh program has it and
/// without any other descriptor; its errors go to /dev/null. Empty id (0), with `error`, when it can't be started.
/// The caller reaps it.
pid_t spawn(const ProgramCall& call, ProgramStreams streams, std::error_code& error);

}
