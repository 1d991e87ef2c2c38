#pragma once

#include <QUndoCommand>

class CommandsListController;

/// Makes another row of a list current.
class UndoSelectStoredCommand final : public QUndoCommand
{
public:
    /// The row to come back to is the controller's current one at this moment.
    UndoSelectStoredCommand(CommandsListController& controller, int row, const QString& text);

    void undo() override;
    void redo() override;

private:
    CommandsListController& controller_;
    int old_row_;
    int new_row_;
};
