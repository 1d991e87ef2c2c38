#pragma once

#include "engine/items/mv_items_set.h"
#include "vellumark_text/options.h"

#include <string>
#include <string_view>

/// One run of the program.
class Session
{
public:
    /// Does what the command line asks for and returns the exit status. Text goes to standard output, messages to
    /// standard error.
    int run(int argc, const char* const* argv);

private:
    int run_command(const Options& options);
    /// False when a path could not be added; each has been reported.
    bool select_paths(const Options& options);

    /// Empty, or why the path could not be added.
    std::string select(std::string_view path);

    MVItemsSet selection_;
};
