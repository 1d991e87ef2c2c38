#include "ui/lists/commands_list_controller.h"

#include "ui/lists/command_lists.h"
#include "ui/lists/commands_comparison.h"
#include "ui/lists/commands_list_model.h"
#include "ui/lists/commands_selection_model.h"
#include "ui/lists/undo_change_stored_commands_list.h"
#include "ui/lists/undo_discard_changes.h"
#include "ui/lists/undo_select_stored_command.h"

#include <QScopeGuard>

#include <algorithm>

namespace {

template <typename Predicate>
int first_row(const CommandList& commands, Predicate predicate)
{
    const auto found = std::ranges::find_if(commands, predicate);
    return found == commands.end() ? -1 : static_cast<int>(found - commands.begin());
}

auto is_of_type(CommandType type)
{
    return [type](const auto& command) { return command->type() == type; };
}

}

CommandsListController::CommandsListController(CommandLists& lists, QObject* parent)
    : QObject(parent), lists_(lists), model_(new CommandsListModel(lists.selection(), *this)),
      selection_(new CommandsSelectionModel(model_, this))
{}

const CommandList& CommandsListController::commands() const
{
    return model_->commands();
}

CommandsListController::Command CommandsListController::command_at(int row) const
{
    const bool exists = row >= 0 && static_cast<std::size_t>(row) < commands().size();
    return exists ? commands()[static_cast<std::size_t>(row)] : nullptr;
}

bool CommandsListController::is_modified() const
{
    return !same_commands(commands(), model_->saved_commands());
}

bool CommandsListController::has_configure_command() const
{
    return std::ranges::any_of(commands(), is_of_type(CommandType::Configure));
}

int CommandsListController::first_file_name_command_row() const
{
    return first_row(commands(), is_of_type(CommandType::Vellumark));
}

int CommandsListController::find(const MVCommandBase& command) const
{
    return first_row(commands(), [&](const auto& other) { return other->equals(command); });
}

int CommandsListController::row_of(const MVCommandBase& command) const
{
    return first_row(commands(), [&](const auto& other) { return other.get() == &command; });
}

int CommandsListController::selected_count() const
{
    return static_cast<int>(selection_->selected_rows().size());
}

void CommandsListController::set_commands(CommandList commands)
{
    model_->set_commands(std::move(commands));
    emit commands_list_changed();
}

void CommandsListController::set_current(Command command, int index)
{
    current_command_ = std::move(command);
    current_index_ = index;
    emit current_command_index_changed();
}

void CommandsListController::set_current_row(int row)
{
    Command command = command_at(row);
    set_current(command, command ? row : -1);
}

void CommandsListController::select_without_undo(int row)
{
    if (command_at(row))
        set_current_row(row);
}

void CommandsListController::select(int row)
{
    const Command command = command_at(row);
    if (!command || (row == current_index_ && command == current_command_))
        return;
    undo_stack().push(new UndoSelectStoredCommand(*this, row, tr("Select Stored Command")));
}

CommandsListController::Command CommandsListController::clone_current() const
{
    return current_command_ ? current_command_->clone() : nullptr;
}

void CommandsListController::delete_selected()
{
    const std::vector<int> rows = selection_->selected_rows();
    if (rows.empty())
        return;
    ListState state;
    for (int row = 0; Command command = command_at(row); ++row)
        if (!std::ranges::binary_search(rows, row))
            state.commands.push_back(std::move(command));
    const auto before = std::ranges::lower_bound(rows, current_index_) - rows.begin();
    state.current = std::min(current_index_ - static_cast<int>(before), static_cast<int>(state.commands.size()) - 1);
    push_list(std::move(state), tr("Delete Command"));
}

void CommandsListController::rename(int row, std::u16string name, std::u16string name1)
{
    const Command command = command_at(row);
    if (!command || (command->name() == name && command->name1() == name1))
        return;
    Command renamed = command->clone();
    renamed->set_name(std::move(name));
    renamed->set_name1(std::move(name1));
    replace(row, std::move(renamed), tr("Rename Stored Command"));
}

void CommandsListController::commit(int row)
{
    if (const Command command = command_at(row); command && command->from_previous_session())
        replace(row, command->clone(), tr("Commit Changes"));
}

void CommandsListController::discard(int row)
{
    if (Command command = command_at(row))
        undo_stack().push(new UndoDiscardChanges(lists_, std::move(command), tr("Discard Changes")));
}

void CommandsListController::reorder(const std::vector<int>& order)
{
    ListState state;
    for (const int row : order)
        state.commands.push_back(command_at(row));
    const auto current = std::ranges::find(order, current_index_);
    state.current = current == order.end() ? -1 : static_cast<int>(current - order.begin());

    QUndoStack& stack = undo_stack();
    stack.beginMacro(tr("Undo Reorder Commands"));
    const auto end = qScopeGuard([&stack] { stack.endMacro(); });
    stack.push(new UndoSelectStoredCommand(*this, current_index_, {}));
    push_list(std::move(state), {});
}

void CommandsListController::command_changed(const MVCommandBase& command)
{
    model_->refresh_row(row_of(command));
}

QUndoStack& CommandsListController::undo_stack() const
{
    return lists_.steps().stack();
}

void CommandsListController::push_list(ListState state, const QString& text)
{
    undo_stack().push(new UndoChangeStoredCommandsList(*this, std::move(state), text));
}

void CommandsListController::replace(int row, Command command, const QString& text)
{
    ListState changed = state();
    changed.commands[static_cast<std::size_t>(row)] = std::move(command);
    push_list(std::move(changed), text);
}
