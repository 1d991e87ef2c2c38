#include "app/list_edits.h"

#include "app/duplicate_name.h"
#include "store/commands_file.h"
#include "ui/app_services.h"
#include "ui/editor/command_controller_base.h"
#include "ui/lists/command_lists.h"
#include "ui/lists/commands_selection_model.h"
#include "ui/lists/undo_change_stored_commands_list.h"
#include "ui/lists/undo_move_command_between_lists.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

void push(CommandsListController& list, ListState state, const QString& text)
{
    list.lists().steps().stack().push(new UndoChangeStoredCommandsList(list, std::move(state), text));
}

/// What is in `commands` now stands in the active list with `command` behind the current one; the user goes on with
/// its name.
void push_with(AppServices& app, CommandList commands, std::shared_ptr<MVCommandBase> command, const QString& text)
{
    CommandsListController& list = app.lists().active();
    const int row = list.current_index() + 1;
    commands.insert(commands.begin() + row, std::move(command));
    push(list, {std::move(commands), row}, text);
    if (CommandControllerBase* editor = app.current_editor())
        editor->focus_name();
}

bool is_builtin(const std::shared_ptr<MVCommandBase>& command)
{
    return command->type() != CommandType::Vellumark;
}

bool is_name_taken(CommandLists& lists, std::u16string_view name)
{
    const auto holds_name = [name](const CommandsListController& list) {
        return std::ranges::any_of(list.commands(), [name](const auto& command) { return command->name() == name; });
    };
    return holds_name(lists.menu()) || holds_name(lists.library());
}

std::shared_ptr<MVCommandBase> copy_under_own_name(CommandLists& lists, const MVCommandBase& command)
{
    auto copy = command.clone();
    copy->set_committed(nullptr);
    const CommandNames names = duplicate_names(
        {command.name(), command.name1()}, [&lists](std::u16string_view name) { return is_name_taken(lists, name); });
    copy->set_name(names.name);
    copy->set_name1(names.name1);
    return copy;
}

/// A list's commands when the selected ones have gone.
struct Parted {
    CommandList staying;
    CommandList leaving;
};

Parted part_by_selection(const CommandsListController& list)
{
    Parted parted;
    const std::vector<int> rows = list.selection().selected_rows();
    for (int row = 0; const auto& command : list.commands())
        (std::ranges::binary_search(rows, row++) ? parted.leaving : parted.staying).push_back(command);
    return parted;
}

}

namespace list_edits {

void add(AppServices& app, std::shared_ptr<MVCommandBase> command, const QString& text)
{
    CommandLists& lists = app.lists();
    if (is_builtin(command))
        lists.activate(lists.menu());
    push_with(app, lists.active().commands(), std::move(command), text);
}

void duplicate(AppServices& app)
{
    const CommandsListController& list = app.lists().active();
    const auto command = list.current_command();
    if (!command)
        return;
    CommandList commands = list.commands();
    if (auto saved = command->committed_copy(); saved && command->has_uncommitted_changes())
        commands[static_cast<std::size_t>(list.current_index())] = std::move(saved);
    push_with(app, std::move(commands), copy_under_own_name(app.lists(), *command),
              QCoreApplication::translate("MirvantaApp", "Duplicate Command"));
}

void move_to_other_list(CommandLists& lists)
{
    const CommandsListController& source = lists.active();
    const bool from_menu = &source == &lists.menu();
    const CommandsListController& target = from_menu ? lists.library() : lists.menu();
    Parted parted = part_by_selection(source);
    if (parted.leaving.empty() || (from_menu && std::ranges::any_of(parted.leaving, is_builtin)))
        return;

    const int last_row = static_cast<int>(parted.staying.size()) - 1;
    ListState left{std::move(parted.staying), std::min(source.current_index(), last_row)};
    ListState joined{target.commands(), static_cast<int>(target.commands().size())};
    std::ranges::move(parted.leaving, std::back_inserter(joined.commands));
    lists.steps().stack().push(
        new UndoMoveCommandBetweenLists(lists, from_menu ? left : joined, from_menu ? joined : left,
                                        QCoreApplication::translate("MirvantaApp", "Move Command")));
}

void reset(CommandLists& lists)
{
    CommandList commands = commands_file::load_defaults().menu;
    const int row = commands.empty() ? -1 : 0;
    push(lists.menu(), {std::move(commands), row},
         QCoreApplication::translate("MirvantaApp", "Reset Stored Commands"));
}

}
