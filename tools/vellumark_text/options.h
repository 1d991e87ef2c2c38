#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// What the command line asks for. Texts are bytes as the shell gave them.
struct Options {
    std::optional<std::string> commands_file;
    std::optional<std::size_t> index;      ///< of the menu list, from 0
    std::optional<std::string> command;    ///< a command's name
    std::optional<std::string> paths_from; ///< a file, or "-" for standard input
    bool nul_separated = false;
    bool list = false, help = false, version = false;
    std::vector<std::string> paths;
};

/// A command line that can't be understood; the words say why.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Throws UsageError.
Options parse_options(int argc, const char* const* argv);

/// The text for --help.
std::string help_text();
