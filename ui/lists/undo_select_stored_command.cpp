#include "ui/lists/undo_select_stored_command.h"

#include "ui/lists/commands_list_controller.h"

UndoSelectStoredCommand::UndoSelectStoredCommand(CommandsListController& controller, int row, const QString& text)
    : QUndoCommand(text), controller_(controller), old_row_(controller.current_index()), new_row_(row)
{}

void UndoSelectStoredCommand::undo()
{
    controller_.set_current_row(old_row_);
}

void UndoSelectStoredCommand::redo()
{
    controller_.set_current_row(new_row_);
}
