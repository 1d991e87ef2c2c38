#pragma once

#include <memory>

class AppServices;
class CommandLists;
class MVCommandBase;
class QString;

/// Steps of undo that the application's buttons and menus take, on the active list.
namespace list_edits {

/// Puts the command behind the list's current one and makes it current. A built-in command goes to the menu list,
/// whichever is active, and that shows then.
void add(AppServices& app, std::shared_ptr<MVCommandBase> command, const QString& text);

/// Puts a copy of the current command, under a name of its own, behind it and makes that current. The copy takes
/// unsaved edits along, and the command itself goes back to its saved contents. Nothing without a current command.
void duplicate(AppServices& app);

/// Moves the selected commands to the end of the other list. Nothing when none is selected, or when a built-in
/// command, which the library can't hold, would leave the menu list.
void move_to_other_list(CommandLists& lists);

/// Replaces the menu list by the default commands. Throws what `commands_file::load_defaults` throws.
void reset(CommandLists& lists);

}
