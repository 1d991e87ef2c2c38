#pragma once

#include <memory>

class CommandControllerBase;
class CommandsListController;
class MVItemsSet;
class QUndoStack;
class SelectionReaders;

/// What the interface asks of the application around it. Main thread only; outlives every widget and controller that
/// was given a reference to it.
class AppServices
{
public:
    virtual ~AppServices() = default;

    virtual CommandsListController& menu_list() = 0;
    virtual CommandsListController& library_list() = 0;
    /// The list whose tab shows; new and duplicated commands go there.
    virtual CommandsListController& active_list() = 0;

    /// Makes the menu list the active one and shows its tab.
    virtual void show_menu_list() = 0;

    virtual QUndoStack& undo_stack() = 0;

    /// The selection that texts and show marks are made of. Never null, always the same object.
    virtual std::shared_ptr<const MVItemsSet> selected_items() const = 0;

    /// Where whoever reads the selection on another thread registers, so that it doesn't change meanwhile.
    virtual SelectionReaders& selection_readers() = 0;

    /// Whether a selection has arrived that isn't taken yet: its paths have not answered, or somebody still reads the
    /// old one. A text made meanwhile is of the old one.
    virtual bool is_selection_coming() const = 0;

    /// The editor that shows the active list's current command; null when no editor takes it.
    virtual CommandControllerBase* current_editor() = 0;

    /// Puts a copy of the active list's current command behind it, as one undo step.
    virtual void duplicate_command() = 0;

    /// Replaces the menu list by the default commands, as one undo step; a failure is shown to the user.
    virtual void reset_stored_commands() = 0;

    /// Ends the dialog as after a finished command. Nothing is asked or saved but the window's state.
    virtual void close_with_accept() = 0;

protected:
    AppServices() = default;
    AppServices(const AppServices&) = default;
    AppServices& operator=(const AppServices&) = default;
};
