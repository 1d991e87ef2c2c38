#pragma once

class CommandsListController;

/// Makes the command run last current, or where there is none, or its file can't be read, the menu list's first
/// file-name command. One that stands in neither list any more comes to the menu list's end, marked as left over. The
/// other list's current row is the one of the last session. `menu` and `library` are as they were loaded. True when
/// the command stands in the library.
bool select_initial_command(CommandsListController& menu, CommandsListController& library);
