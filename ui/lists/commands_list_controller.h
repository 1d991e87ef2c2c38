#pragma once

#include "ui/lists/list_state.h"

#include <QObject>

#include <memory>
#include <string>
#include <vector>

class CommandLists;
class CommandsListModel;
class CommandsSelectionModel;
class QUndoStack;

/// One list of stored commands: its state, its rows' selection and the operations that go through undo. Main thread
/// only. An operation on a row that doesn't exist does nothing.
class CommandsListController final : public QObject
{
    Q_OBJECT

public:
    using Command = std::shared_ptr<MVCommandBase>;

    /// Empty; one of `lists`.
    explicit CommandsListController(CommandLists& lists, QObject* parent = nullptr);

    CommandLists& lists() const { return lists_; }

    CommandsListModel& model() const { return *model_; }

    /// Which rows are selected; the view shares it.
    CommandsSelectionModel& selection() const { return *selection_; }

    /// -1 when no command is current.
    int current_index() const { return current_index_; }

    /// Null when no command is current.
    const Command& current_command() const { return current_command_; }

    const CommandList& commands() const;
    /// Null for a row that doesn't exist.
    Command command_at(int row) const;

    ListState state() const { return {commands(), current_index_}; }

    /// Whether the list differs from its saved form.
    bool is_modified() const;

    bool is_empty() const { return commands().empty(); }

    /// Whether the menu would still offer the way into this application.
    bool has_configure_command() const;
    /// -1 without one.
    int first_file_name_command_row() const;
    /// The first row whose command equals this one; -1 without one.
    int find(const MVCommandBase& command) const;
    /// The row of this very command; -1 when it stands elsewhere.
    int row_of(const MVCommandBase& command) const;
    int selected_count() const;

    /// Not undoable: replaces the commands. The current command stays what it was: follow with `set_current_row`.
    void set_commands(CommandList commands);
    /// Not undoable: `command` stands in row `index`; null and -1 for none.
    void set_current(Command command, int index);
    /// Not undoable: makes the row current, none when it doesn't exist.
    void set_current_row(int row);
    /// As `set_current_row`, but a row that doesn't exist changes nothing.
    void select_without_undo(int row);
    /// Makes the row current, as one undo step; nothing when it is.
    void select(int row);

    /// Null when no command is current.
    Command clone_current() const;

    /// Deletes the selected rows, as one undo step.
    void delete_selected();
    /// Gives the row's command its two names, as one undo step. Nothing when it has them.
    void rename(int row, std::u16string name, std::u16string name1);
    /// Makes an ordinary command of one that was taken from the last session, as one undo step.
    void commit(int row);
    /// Takes the row's command back to its saved contents, as one undo step.
    void discard(int row);
    /// Puts row `order[i]` into row i, as one undo step. `order` holds every row once.
    void reorder(const std::vector<int>& order);

    /// The command's contents changed behind its row, which has to be painted again. Nothing when it stands
    /// elsewhere.
    void command_changed(const MVCommandBase& command);

signals:
    /// Also when the row stays and its command is another.
    void current_command_index_changed();
    /// Whether the list is saved, or empty, may have changed.
    void commands_list_changed();

private:
    QUndoStack& undo_stack() const;
    void push_list(ListState state, const QString& text);
    void replace(int row, Command command, const QString& text);

    CommandLists& lists_;
    CommandsListModel* model_;
    CommandsSelectionModel* selection_;
    int current_index_ = -1;
    Command current_command_;
};
