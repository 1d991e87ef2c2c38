#pragma once

#include "ui/lists/list_state.h"
#include "ui/undo/undo_step.h"

class CommandLists;

/// Replaces the commands and the current rows of both lists: when commands move between them, and when what another
/// program has saved comes in.
class UndoMoveCommandBetweenLists final : public UndoStep
{
public:
    /// The states to come back to are those of the lists at this moment.
    UndoMoveCommandBetweenLists(CommandLists& lists, ListState menu, ListState library, const QString& text);

private:
    struct States {
        ListState menu, library;
    };

    void put_old() override;
    void put_new() override;
    void apply(const States& states);

    CommandLists& lists_;
    States old_;
    States new_;
};
