#pragma once

#include <memory>

class CommandLists;
class VellumarkCommand;

/// Makes the command run last current, or where there is none (null) the menu list's first file-name command. One
/// that stands in neither list any more comes to the menu list's end, marked as left over. The other list's current
/// row is the one of the last session. The list of the command becomes the active one. `lists` are as they were
/// loaded.
void select_initial_command(const std::shared_ptr<VellumarkCommand>& last, CommandLists& lists);
