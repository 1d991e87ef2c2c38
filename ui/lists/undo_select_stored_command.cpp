#include "ui/lists/undo_select_stored_command.h"

#include "ui/lists/command_lists.h"

UndoSelectStoredCommand::UndoSelectStoredCommand(CommandsListController& controller, int row, const QString& text)
    : UndoStep(controller.lists().steps(), text), controller_(controller), old_row_(controller.current_index()),
      new_row_(row)
{}

void UndoSelectStoredCommand::put_old()
{
    controller_.set_current_row(old_row_);
}

void UndoSelectStoredCommand::put_new()
{
    controller_.set_current_row(new_row_);
}
