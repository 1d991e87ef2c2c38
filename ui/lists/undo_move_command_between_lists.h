#pragma once

#include "ui/lists/list_state.h"

#include <QUndoCommand>

class AppServices;

/// Replaces the commands and the current rows of both lists.
class UndoMoveCommandBetweenLists final : public QUndoCommand
{
public:
    /// The states to come back to are those of the application's lists at this moment.
    UndoMoveCommandBetweenLists(AppServices& app, ListState menu, ListState library, const QString& text);

    void undo() override;
    void redo() override;

private:
    struct States {
        ListState menu, library;
    };

    void apply(const States& states);

    AppServices& app_;
    States old_;
    States new_;
};
