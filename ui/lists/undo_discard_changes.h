#pragma once

#include "ui/undo/command_step.h"

/// Takes a command back to its saved contents.
class UndoDiscardChanges final : public CommandStep
{
public:
    /// The contents to come back to are the command's at this moment.
    UndoDiscardChanges(CommandLists& lists, std::shared_ptr<MVCommandBase> command, const QString& text);

private:
    void write_old(MVCommandBase& command) override;
    void write_new(MVCommandBase& command) override;

    std::shared_ptr<const MVCommandBase> old_;
};
