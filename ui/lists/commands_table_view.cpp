#include "ui/lists/commands_table_view.h"

#include "ui/lists/commands_list_model.h"
#include "ui/widgets/scheme_change.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {

bool asks_for_menu(const QKeyEvent& event)
{
    return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

}

CommandsTableView::CommandsTableView(QWidget* parent) : QTableView(parent)
{
    setFrameShape(NoFrame);
    setShowGrid(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    setDragEnabled(true);
    setDragDropMode(InternalMove);
    setDragDropOverwriteMode(false);
    setDropIndicatorShown(true);
    setDefaultDropAction(Qt::MoveAction);
}

void CommandsTableView::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    set_up_headers();
}

void CommandsTableView::set_up_headers()
{
    QHeaderView& columns = *horizontalHeader();
    columns.hide();
    columns.setMinimumSectionSize(8);
    columns.setSectionResizeMode(QHeaderView::Fixed);
    columns.setSectionResizeMode(CommandsListModel::NameColumn, QHeaderView::Stretch);
    columns.resizeSection(CommandsListModel::MarkColumn, 24);
    columns.resizeSection(CommandsListModel::MenuColumn, 32);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    fit_rows_to_font();
}

void CommandsTableView::fit_rows_to_font()
{
    verticalHeader()->setDefaultSectionSize(std::max(fontMetrics().height() + 8, 24));
}

void CommandsTableView::show_row(const QModelIndex& index)
{
    executeDelayedItemsLayout();
    scrollTo(index);
}

void CommandsTableView::finish_edit()
{
    const QPointer editor = indexWidget(currentIndex());
    if (!editor)
        return;
    commitData(editor);
    if (editor)
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

QModelIndex CommandsTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action != MoveHome && action != MoveEnd)
        return QTableView::moveCursor(action, modifiers);
    return model()->index(action == MoveHome ? 0 : model()->rowCount() - 1, CommandsListModel::NameColumn);
}

QPoint CommandsTableView::cell_centre(const QModelIndex& index) const
{
    return viewport()->mapToGlobal(visualRect(index).center());
}

void CommandsTableView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete) {
        emit delete_selected();
        return;
    }
    if (asks_for_menu(*event)) {
        show_menu_of_current_row();
        return;
    }
    // Only the name can be edited, whichever cell of the row the keyboard is in.
    if (event->key() == Qt::Key_F2)
        selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(CommandsListModel::NameColumn),
                                          QItemSelectionModel::NoUpdate);
    QTableView::keyPressEvent(event);
}

void CommandsTableView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        show_menu_of_current_row();
    else
        emit show_context_menu(event->globalPos(), rowAt(event->pos().y()));
}

void CommandsTableView::show_menu_of_current_row()
{
    if (!currentIndex().isValid())
        return;
    show_row(currentIndex());
    const QModelIndex button = currentIndex().siblingAtColumn(CommandsListModel::MenuColumn);
    emit show_context_menu(cell_centre(button), button.row());
}

void CommandsTableView::commitData(QWidget* editor)
{
    const QScopedValueRollback committing(is_committing_, true);
    edit_replaced_rows_ = false;
    QTableView::commitData(editor);
}

void CommandsTableView::reset()
{
    QTableView::reset();
    edit_replaced_rows_ = is_committing_;
}

void CommandsTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (std::exchange(edit_replaced_rows_, false))
        setFocus();
    else
        QTableView::closeEditor(editor, hint);
}

void CommandsTableView::dropEvent(QDropEvent* event)
{
    // The table's own way moves the rows one by one and takes it as done when the first one stays in its place.
    QAbstractItemView::dropEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void CommandsTableView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fit_rows_to_font();
    if (is_scheme_change(*event))
        viewport()->update();
}
