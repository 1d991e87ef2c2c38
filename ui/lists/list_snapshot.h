#pragma once

#include "store/stored_commands.h"

/// The commands of a list at one moment, with what they were like then.
struct ListSnapshot {
    CommandList commands;
    CommandList copies; ///< one for each, without a committed copy
};
