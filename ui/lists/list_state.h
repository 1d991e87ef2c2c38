#pragma once

#include "store/stored_commands.h"

/// What one step of undo gives back to a list. Commands are shared between states: a change inside a command is no
/// part of them.
struct ListState {
    CommandList commands;
    int current = -1; ///< row, -1 for none
};
