#pragma once

#include "engine/items/mv_items_set.h"
#include "vellumark_text/options.h"

/// One run of the program.
class Session
{
public:
    /// Does what the command line asks for and returns the exit status. Text goes to standard output, messages to
    /// standard error.
    int run(int argc, const char* const* argv);

private:
    int run_command(const Options& options);

    MVItemsSet selection_;
};
