#pragma once

#include "ui/lists/list_snapshot.h"
#include "ui/lists/show_marks.h"

#include <QAbstractTableModel>
#include <QIcon>

class SelectionServices;
class CommandsListController;

/// The rows of a list: its commands as they are and as they were saved last. Main thread only.
class CommandsListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { MarkColumn, NameColumn, MenuColumn, ColumnCount };

    /// Child of its controller.
    CommandsListModel(SelectionServices& selection, CommandsListController& controller);

    const CommandList& commands() const { return commands_; }

    /// The list as it was loaded or saved last.
    const CommandList& saved_commands() const { return saved_commands_; }

    /// For the controller, which tells the world of it.
    void set_commands(CommandList commands);
    /// A list as it was loaded: its commands are the saved ones, and what is edited are clones that know them.
    void set_saved_commands(CommandList commands);

    /// The saved form alone: the list stays as it is.
    void set_saved_form(CommandList commands) { saved_commands_ = std::move(commands); }

    ListSnapshot snapshot() const;

    /// The list was saved as it was at `saved`, whatever it has become since.
    void mark_saved(ListSnapshot saved);

    /// The commands or the selection changed behind the rows, so that these have to be painted again.
    void refresh_rows();
    void refresh_row(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override;
    /// What a drag carries of a cell: where it goes to, the row is enough.
    QMap<int, QVariant> itemData(const QModelIndex& index) const override;
    /// One cell a row stands for all of them.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    using Command = std::shared_ptr<MVCommandBase>;

    QVariant mark_data(const MVCommandBase& command, int role) const;
    QVariant name_data(const Command& command, int role) const;
    QVariant menu_button_data(int role) const;
    void command_decided(const Command& command);

    CommandsListController& controller_;
    mutable ShowMarks show_marks_;
    CommandList commands_;
    CommandList saved_commands_;
    QIcon unsaved_icon_;
    QIcon no_save_icon_;
};
