#include "ui/lists/undo_move_command_between_lists.h"

#include "ui/app_services.h"
#include "ui/lists/commands_list_controller.h"

UndoMoveCommandBetweenLists::UndoMoveCommandBetweenLists(AppServices& app, ListState menu, ListState library,
                                                         const QString& text)
    : QUndoCommand(text),
      app_(app), old_{app.menu_list().state(), app.library_list().state()}, new_{std::move(menu), std::move(library)}
{}

void UndoMoveCommandBetweenLists::undo()
{
    apply(old_);
}

void UndoMoveCommandBetweenLists::redo()
{
    apply(new_);
}

void UndoMoveCommandBetweenLists::apply(const States& states)
{
    app_.menu_list().set_commands(states.menu.commands);
    app_.library_list().set_commands(states.library.commands);
    app_.menu_list().set_current_row(states.menu.current);
    app_.library_list().set_current_row(states.library.current);
}
