#include "ui/lists/undo_move_command_between_lists.h"

#include "ui/lists/command_lists.h"

UndoMoveCommandBetweenLists::UndoMoveCommandBetweenLists(CommandLists& lists, ListState menu, ListState library,
                                                         const QString& text)
    : UndoStep(lists.steps(), text),
      lists_(lists), old_{lists.menu().state(), lists.library().state()}, new_{std::move(menu), std::move(library)}
{}

void UndoMoveCommandBetweenLists::put_old()
{
    apply(old_);
}

void UndoMoveCommandBetweenLists::put_new()
{
    apply(new_);
}

void UndoMoveCommandBetweenLists::apply(const States& states)
{
    lists_.menu().set_commands(states.menu.commands);
    lists_.library().set_commands(states.library.commands);
    lists_.menu().set_current_row(states.menu.current);
    lists_.library().set_current_row(states.library.current);
}
