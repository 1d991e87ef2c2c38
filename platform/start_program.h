#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>

namespace platform {

/// A program that was started; it goes on when this object is gone and when its starter ends.
class StartedProgram
{
public:
    explicit StartedProgram(std::int64_t id) : id_(id) {}

    /// Whether it has ended by now; waits for nothing.
    bool has_ended();

private:
    std::int64_t id_;
    bool has_ended_ = false;
};

/// Starts the program in `file`, in drive form, in a session of its own: apart from the environment it has nothing of
/// the caller, whose terminal, pipes, open files and current folder it would otherwise hold on to.
/// Empty, with `error`, when it can't be started.
std::optional<StartedProgram> start_program(std::u16string_view file, std::error_code& error);

}
