#include "ui/lists/commands_list_model.h"

#include "engine/commands/mv_command_base.h"
#include "ui/lists/command_row.h"
#include "ui/lists/commands_list_controller.h"
#include "ui/lists/moved_rows.h"
#include "ui/lists/row_mime.h"
#include "ui/text.h"

#include <QFont>
#include <QFontInfo>
#include <QMimeData>

#include <algorithm>

namespace {

QFont menu_button_font()
{
    QFont font;
    font.setPointSizeF(QFontInfo(font).pointSizeF() + 10);
    font.setWeight(QFont::Bold);
    return font;
}

QFont nameless_font()
{
    QFont font;
    font.setItalic(true);
    return font;
}

}

CommandsListModel::CommandsListModel(SelectionServices& selection, CommandsListController& controller)
    : QAbstractTableModel(&controller), controller_(controller),
      show_marks_(selection, [this](const Command& command) { command_decided(command); }),
      unsaved_icon_(":/MirvantaApp/Resources/unsaved.svg"), no_save_icon_(":/MirvantaApp/Resources/no_save.svg")
{}

void CommandsListModel::set_commands(CommandList commands)
{
    beginResetModel();
    commands_ = std::move(commands);
    endResetModel();
}

void CommandsListModel::set_saved_commands(CommandList commands)
{
    CommandList edited;
    edited.reserve(commands.size());
    for (const Command& saved : commands) {
        edited.push_back(saved->clone());
        edited.back()->set_committed(saved);
    }
    saved_commands_ = std::move(commands);
    show_marks_.forget();
    set_commands(std::move(edited));
}

ListSnapshot CommandsListModel::snapshot() const
{
    ListSnapshot snapshot{commands_, {}};
    snapshot.copies.reserve(commands_.size());
    for (const Command& command : commands_) {
        snapshot.copies.push_back(command->clone());
        snapshot.copies.back()->set_committed(nullptr);
    }
    return snapshot;
}

void CommandsListModel::mark_saved(ListSnapshot saved)
{
    for (std::size_t i = 0; i < saved.commands.size(); ++i) {
        // The file has it now, so that from here on it is a command as any other.
        saved.commands[i]->set_from_previous_session(false);
        saved.commands[i]->set_committed(saved.copies[i]);
    }
    saved_commands_ = std::move(saved.copies);
    refresh_rows();
}

void CommandsListModel::refresh_rows()
{
    show_marks_.forget();
    if (!commands_.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void CommandsListModel::refresh_row(int row)
{
    if (!hasIndex(row, 0))
        return;
    show_marks_.forget(commands_[static_cast<std::size_t>(row)]);
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

void CommandsListModel::command_decided(const Command& command)
{
    const auto found = std::ranges::find(commands_, command);
    if (found == commands_.end())
        return;
    const int row = static_cast<int>(found - commands_.begin());
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

int CommandsListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(commands_.size());
}

int CommandsListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CommandsListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Command& command = commands_[static_cast<std::size_t>(index.row())];
    if (role == Qt::ForegroundRole)
        return command_row::colour(*command, show_marks_.is_shown(command));
    switch (index.column()) {
    case MarkColumn: return mark_data(*command, role);
    case NameColumn: return name_data(command, role);
    default: return menu_button_data(role);
    }
}

QVariant CommandsListModel::mark_data(const MVCommandBase& command, int role) const
{
    const bool asked = role == Qt::DecorationRole || role == Qt::ToolTipRole || role == Qt::AccessibleTextRole;
    if (!asked || !command.has_uncommitted_changes())
        return {};
    if (role == Qt::DecorationRole)
        return command.from_previous_session() ? no_save_icon_ : unsaved_icon_;
    return command_row::mark_reason(command);
}

QVariant CommandsListModel::name_data(const Command& command, int role) const
{
    switch (role) {
    case Qt::DisplayRole: return command_row::shown_name(*command);
    case Qt::EditRole: return to_qstring(command->name());
    case Qt::ToolTipRole: return command_row::kind(*command);
    case Qt::AccessibleTextRole: return command_row::spoken_name(*command, show_marks_.is_shown(command));
    case Qt::FontRole: return command->name().empty() ? QVariant(nameless_font()) : QVariant();
    default: return {};
    }
}

QVariant CommandsListModel::menu_button_data(int role) const
{
    switch (role) {
    case Qt::DisplayRole: return QString(QChar(0x22EF));
    case Qt::AccessibleTextRole: return tr("Menu of this command");
    case Qt::FontRole: return menu_button_font();
    case Qt::TextAlignmentRole: return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    default: return {};
    }
}

bool CommandsListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || index.column() != NameColumn)
        return false;
    const QString name = value.toString();
    if (name == data(index, Qt::EditRole).toString())
        return false;
    controller_.rename(index.row(), from_qstring(name), {});
    return true;
}

Qt::ItemFlags CommandsListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return QAbstractTableModel::flags(index) | Qt::ItemIsDropEnabled;
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
    return index.column() == NameColumn ? flags | Qt::ItemIsEditable : flags;
}

Qt::DropActions CommandsListModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QMap<int, QVariant> CommandsListModel::itemData(const QModelIndex& index) const
{
    return {{Qt::DisplayRole, data(index, Qt::DisplayRole)}};
}

QMimeData* CommandsListModel::mimeData(const QModelIndexList& indexes) const
{
    QModelIndexList names;
    std::ranges::copy_if(indexes, std::back_inserter(names),
                         [](const QModelIndex& index) { return index.column() == NameColumn; });
    return QAbstractTableModel::mimeData(names);
}

bool CommandsListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int /*column*/,
                                     const QModelIndex& parent)
{
    const QString format = mimeTypes().constFirst();
    if (!data || action != Qt::MoveAction || parent.isValid() || !data->hasFormat(format))
        return false;
    const int target = row < 0 ? rowCount() : row;
    const auto order = moved_rows(rowCount(), rows_of_item_list(data->data(format)), target);
    if (order)
        controller_.reorder(*order);
    return order.has_value();
}
