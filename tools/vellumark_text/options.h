#pragma once

#include "common/command_line.h"

#include <cstddef>
#include <optional>
#include <string>

/// What the command line asks for. Texts are bytes as the shell gave them.
struct Options : CommonOptions {
    std::optional<std::string> commands_file;
    std::optional<std::size_t> index;   ///< of the menu list, from 0
    std::optional<std::string> command; ///< a command's name
    bool list = false;
};

/// Throws UsageError.
Options parse_options(int argc, const char* const* argv);

/// The text for --help.
std::string help_text();
