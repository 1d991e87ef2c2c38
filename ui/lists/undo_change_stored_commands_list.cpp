#include "ui/lists/undo_change_stored_commands_list.h"

#include "ui/lists/command_lists.h"

namespace {

void apply(CommandsListController& controller, const ListState& state)
{
    controller.set_commands(state.commands);
    controller.set_current_row(state.current);
}

}

UndoChangeStoredCommandsList::UndoChangeStoredCommandsList(CommandsListController& controller, ListState state,
                                                           const QString& text)
    : UndoStep(controller.lists().steps(), text), controller_(controller), old_(controller.state()),
      new_(std::move(state))
{}

void UndoChangeStoredCommandsList::put_old()
{
    apply(controller_, old_);
}

void UndoChangeStoredCommandsList::put_new()
{
    apply(controller_, new_);
}
