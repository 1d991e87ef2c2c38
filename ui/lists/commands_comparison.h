#pragma once

#include "store/stored_commands.h"

/// Whether two lists hold equal commands in the same order. Commands that were taken from the last session's run
/// count in neither: they are nothing that the user did.
bool same_commands(const CommandList& left, const CommandList& right);
