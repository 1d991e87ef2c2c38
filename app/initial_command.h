#pragma once

class CommandsListController;
class VellumarkCommand;

/// Which command is current when the window opens.
struct InitialCommand {
    bool in_library = false; ///< else in the menu list
    int row = 0;
    bool is_new = false; ///< stands in neither list: the row is the one behind the menu list's last
};

/// `last` is the command run last, null when there is none: the first that equals it, in the menu list before the
/// library. Without one the menu list's first file-name command, or row 0.
InitialCommand initial_command(const VellumarkCommand* last, const CommandsListController& menu,
                               const CommandsListController& library);
