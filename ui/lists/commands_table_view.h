#pragma once

#include <QTableView>

/// The table of a list of commands, rows of one height. Main thread only.
class CommandsTableView final : public QTableView
{
    Q_OBJECT

public:
    explicit CommandsTableView(QWidget* parent = nullptr);

    /// `model` has the columns of a CommandsListModel.
    void setModel(QAbstractItemModel* model) override;

    void reset() override;

    /// Scrolls no further than it takes to see the row, also right after the rows were replaced.
    void show_row(const QModelIndex& index);

    /// Takes over what is typed into a name that is being edited.
    void finish_edit();

    /// The middle of a cell, in global coordinates.
    QPoint cell_centre(const QModelIndex& index) const;

signals:
    void delete_selected();
    /// `row` is -1 below the last row.
    void show_context_menu(QPoint global_position, int row);

protected:
    /// Home and End go to the first and the last row.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void set_up_headers();
    void fit_rows_to_font();
    void show_menu_of_current_row();

    bool is_committing_ = false;
    /// The edit that was taken over last gave the list new rows, and its editor went with the old ones.
    bool edit_replaced_rows_ = false;
};
