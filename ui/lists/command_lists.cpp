#include "ui/lists/command_lists.h"

CommandLists::CommandLists(SelectionServices& selection, UndoSteps& steps, QObject* parent)
    : QObject(parent), selection_(selection), steps_(steps), menu_(*this), library_(*this)
{
    connect(&steps_, &UndoSteps::ended, this, &CommandLists::refresh_rows);
    for (CommandsListController* list : {&menu_, &library_})
        connect(list, &CommandsListController::current_command_index_changed, this, [this, list] {
            if (list == active_)
                emit current_command_changed();
        });
}

void CommandLists::activate(CommandsListController& list)
{
    if (active_ == &list)
        return;
    active_ = &list;
    emit active_list_changed();
    emit current_command_changed();
}

void CommandLists::show(const MVCommandBase& command)
{
    for (CommandsListController* list : {&menu_, &library_}) {
        const int row = list->row_of(command);
        if (row < 0)
            continue;
        if (row != list->current_index())
            list->set_current_row(row);
        activate(*list);
        return;
    }
}

void CommandLists::refresh_rows(const WrittenCommands& written)
{
    for (const auto& command : written) {
        menu_.command_changed(*command);
        library_.command_changed(*command);
    }
}
