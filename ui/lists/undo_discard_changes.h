#pragma once

#include "ui/undo/command_step.h"

/// Takes a command back to its saved contents, those of a save before this step; one that was never saved stays.
class UndoDiscardChanges final : public CommandStep
{
public:
    /// Both contents are the command's at this moment, whatever is saved later.
    UndoDiscardChanges(CommandLists& lists, std::shared_ptr<MVCommandBase> command, const QString& text);

private:
    void write_old(MVCommandBase& command) override;
    void write_new(MVCommandBase& command) override;

    std::shared_ptr<const MVCommandBase> old_;
    std::shared_ptr<const MVCommandBase> new_; ///< null for none
};
