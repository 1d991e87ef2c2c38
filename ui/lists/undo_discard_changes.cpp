#include "ui/lists/undo_discard_changes.h"

#include "engine/commands/mv_command_base.h"

UndoDiscardChanges::UndoDiscardChanges(CommandLists& lists, std::shared_ptr<MVCommandBase> command,
                                       const QString& text)
    : CommandStep(lists, std::move(command), text), old_(this->command()->clone()),
      new_(this->command()->committed_copy())
{}

void UndoDiscardChanges::write_old(MVCommandBase& command)
{
    command.assign_from(*old_);
}

void UndoDiscardChanges::write_new(MVCommandBase& command)
{
    if (new_)
        command.assign_from(*new_);
}
