#pragma once

#include "ui/undo/undo_step.h"

class CommandsListController;

/// Makes another row of a list current.
class UndoSelectStoredCommand final : public UndoStep
{
public:
    /// The row to come back to is the controller's current one at this moment.
    UndoSelectStoredCommand(CommandsListController& controller, int row, const QString& text);

private:
    void put_old() override;
    void put_new() override;

    CommandsListController& controller_;
    int old_row_;
    int new_row_;
};
