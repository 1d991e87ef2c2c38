#include "app/initial_selection.h"

#include "app/initial_command.h"
#include "app/settings_keys.h"
#include "engine/commands/vellumark_command.h"
#include "ui/lists/command_lists.h"

#include <QSettings>

namespace {

void restore_row(CommandsListController& list, QLatin1StringView key)
{
    const int row = QSettings().value(key, 0).toInt();
    list.select_without_undo(list.command_at(row) ? row : 0);
}

void append_left_over(CommandsListController& menu, const std::shared_ptr<VellumarkCommand>& command)
{
    command->set_from_previous_session(true);
    CommandList commands = menu.commands();
    commands.push_back(command);
    menu.set_commands(std::move(commands));
}

}

void select_initial_command(const std::shared_ptr<VellumarkCommand>& last, CommandLists& lists)
{
    CommandsListController &menu = lists.menu(), &library = lists.library();
    const InitialCommand initial = initial_command(last.get(), menu, library);
    if (initial.is_new)
        append_left_over(menu, last);
    if (initial.in_library)
        restore_row(menu, settings_keys::menu_row);
    else
        restore_row(library, settings_keys::library_row);
    CommandsListController& list = initial.in_library ? library : menu;
    list.select_without_undo(initial.row);
    lists.activate(list);
}
