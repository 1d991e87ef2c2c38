#pragma once

#include "common/command_line.h"

#include <cstddef>
#include <optional>
#include <string>

/// What the command line asks for.
struct Options : CommonOptions {
    std::optional<std::size_t> index; ///< of the menu list, from 0
};

/// Throws UsageError.
Options parse_options(int argc, const char* const* argv);

/// The text for --help.
std::string help_text();
