#pragma once

#include "platform/host/spawn.h"

#include <chrono>

namespace platform {

using Deadline = std::chrono::steady_clock::time_point;

/// Waits until the descriptor can be read or has come to its end; false when that takes too long.
bool wait_readable(int descriptor, Deadline deadline);

/// A program that is asked for one thing and ends when that is done. What it leaves in the background when it
/// succeeds goes on; in any other case all of its session is ended with this object.
class HelperProgram
{
public:
    HelperProgram(const ProgramCall& call, ProgramStreams streams);
    ~HelperProgram();
    HelperProgram(const HelperProgram&) = delete;
    HelperProgram& operator=(const HelperProgram&) = delete;

    /// Whether the program was there and ends with status 0 in time.
    bool succeeds(Deadline deadline);

private:
    pid_t id_ = 0; ///< 0 when there is nothing to reap
};

}
