#pragma once

#include "common/command_line.h"

#include <functional>
#include <string>
#include <string_view>

namespace exit_status {

constexpr int success = 0, failure = 1, wrong_usage = 2;

}

/// A program at a terminal: its name in front of its messages, its exit status.
class Tool
{
public:
    explicit Tool(std::string name) : name_(std::move(name)) {}

    /// What `work` returns, or the status of the exception that it throws, which is reported.
    int run(const std::function<int()>& work) const;

    /// Writes a message to standard error.
    void complain(const std::string& message) const;

    /// Answers --help or --version and returns true when one is given. Throws what `write_out` throws.
    bool answered(const CommonOptions& options, const std::function<std::string()>& help) const;

private:
    std::string name_;
};

/// Writes to standard output. Throws std::runtime_error at a failure, as `finish_output` does, which makes sure that
/// all of it has gone out.
void write_out(std::string_view bytes);
void finish_output();

/// An exception's text for a user.
std::string words_of(const std::exception& error);
