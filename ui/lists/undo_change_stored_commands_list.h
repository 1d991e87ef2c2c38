#pragma once

#include "ui/lists/list_state.h"
#include "ui/undo/undo_step.h"

class CommandsListController;

/// Replaces a list's commands and its current row.
class UndoChangeStoredCommandsList final : public UndoStep
{
public:
    /// The state to come back to is the controller's at this moment.
    UndoChangeStoredCommandsList(CommandsListController& controller, ListState state, const QString& text);

private:
    void put_old() override;
    void put_new() override;

    CommandsListController& controller_;
    ListState old_;
    ListState new_;
};
