#pragma once

#include "ui/lists/commands_list_controller.h"
#include "ui/undo/undo_steps.h"

class SelectionServices;

/// The two lists of stored commands, and which of them is at work. Main thread only.
class CommandLists final : public QObject
{
    Q_OBJECT

public:
    /// Both lists are empty, the menu list is active. `selection` and `steps` outlive the lists.
    CommandLists(SelectionServices& selection, UndoSteps& steps, QObject* parent = nullptr);

    UndoSteps& steps() const { return steps_; }

    SelectionServices& selection() const { return selection_; }

    CommandsListController& menu() { return menu_; }

    CommandsListController& library() { return library_; }

    /// The list whose tab shows; new and duplicated commands go there.
    CommandsListController& active() { return *active_; }

    /// `list` is one of the two.
    void activate(CommandsListController& list);

    /// Makes the command current and its list the active one, without a step of undo. Nothing for a command that
    /// stands in neither list.
    void show(const MVCommandBase& command);

signals:
    void active_list_changed();
    /// The active list has another current command, or is another list.
    void current_command_changed();

private:
    void refresh_rows(const WrittenCommands& written);

    SelectionServices& selection_;
    UndoSteps& steps_;
    CommandsListController menu_;
    CommandsListController library_;
    CommandsListController* active_ = &menu_;
};
