#pragma once

#include "ui/lists/list_state.h"

#include <QUndoCommand>

class CommandsListController;

/// Replaces a list's commands and its current row.
class UndoChangeStoredCommandsList final : public QUndoCommand
{
public:
    /// The state to come back to is the controller's at this moment.
    UndoChangeStoredCommandsList(CommandsListController& controller, ListState state, const QString& text);

    void undo() override;
    void redo() override;

private:
    CommandsListController& controller_;
    ListState old_;
    ListState new_;
};
