#include "ui/lists/undo_discard_changes.h"

#include "engine/commands/mv_command_base.h"
#include "ui/lists/commands_list_controller.h"

UndoDiscardChanges::UndoDiscardChanges(CommandsListController& controller, CommandControllerBase* editor,
                                       std::shared_ptr<MVCommandBase> command, const QString& text)
    : QUndoCommand(text), controller_(controller), editor_(editor), command_(std::move(command)),
      old_(command_->clone())
{}

void UndoDiscardChanges::undo()
{
    command_->assign_from(*old_);
    show();
}

void UndoDiscardChanges::redo()
{
    command_->revert();
    show();
}

void UndoDiscardChanges::show()
{
    if (editor_)
        editor_->refresh();
    controller_.command_changed(*command_);
}
