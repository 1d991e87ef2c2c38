#pragma once

#include "store/stored_commands.h"

/// What becomes of two sets of stored commands that were made of the same one, `base`, such as those of two windows.
/// Whatever either side added or changed is there: a command that both have changed in two ways, and what `theirs`
/// adds under a name that is there already, comes in with a number behind its name. What one side deleted and the
/// other left as it was is gone. Commands that `mine` has keep their order and are the same objects; what comes in is
/// an object of `theirs`, or a renamed clone, behind the command that it follows there. A preset that both changed
/// comes in as another one.
StoredCommands merge_commands(const StoredCommands& base, const StoredCommands& mine, const StoredCommands& theirs);
