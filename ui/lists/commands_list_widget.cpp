#include "ui/lists/commands_list_widget.h"

#include "engine/commands/mv_command_base.h"
#include "ui/app_services.h"
#include "ui/dialogs/change_command_name_dlg.h"
#include "ui/editor/command_controller_base.h"
#include "ui/lists/commands_list_controller.h"
#include "ui/lists/commands_list_model.h"
#include "ui/lists/commands_selection_model.h"
#include "ui/lists/commands_table_view.h"
#include "ui/text.h"

#include <QMenu>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>

CommandsListWidget::CommandsListWidget(AppServices& app, CommandsListController& controller, bool is_library,
                                       QWidget* parent)
    : QWidget(parent), app_(app), controller_(controller), view_(new CommandsTableView(this)), is_library_(is_library)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    setFocusProxy(view_);
    view_->setAccessibleName(is_library ? tr("Commands Library") : tr("Context Menu Commands"));
    view_->setModel(&controller.model());
    view_->setSelectionModel(&controller.selection());
    connect_view();
    follow_controller();
}

CommandsListWidget::~CommandsListWidget()
{
    // An edit that is open is finished then, which has to find this object whole.
    delete view_;
}

void CommandsListWidget::connect_view()
{
    connect(&controller_, &CommandsListController::current_command_index_changed, this,
            &CommandsListWidget::follow_controller);
    connect(&controller_.selection(), &QItemSelectionModel::currentRowChanged, this,
            &CommandsListWidget::follow_view);
    // An open edit gives the focus back to the view meanwhile, which takes the first row for want of another.
    connect(&controller_.model(), &QAbstractItemModel::modelAboutToBeReset, this, [this] { syncing_ = true; });
    connect(&controller_.model(), &QAbstractItemModel::modelReset, this, [this] {
        controller_.selection().clear();
        syncing_ = false;
    });
    connect(view_, &CommandsTableView::delete_selected, &controller_, &CommandsListController::delete_selected);
    connect(view_, &CommandsTableView::show_context_menu, this, &CommandsListWidget::show_menu);
    connect(view_, &CommandsTableView::clicked, this, &CommandsListWidget::cell_clicked);
}

bool CommandsListWidget::is_modified() const
{
    return controller_.is_modified();
}

void CommandsListWidget::follow_controller()
{
    const QScopedValueRollback guard(syncing_, true);
    CommandsSelectionModel& selection = controller_.selection();
    const int row = controller_.current_index();
    if (row < 0) {
        selection.clear();
    } else if (selection.currentIndex().row() != row) {
        // A row that is current already keeps its place under the mouse and the others that are selected with it.
        selection.setCurrentIndex(controller_.model().index(row, CommandsListModel::NameColumn),
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        view_->show_row(selection.currentIndex());
    }
}

void CommandsListWidget::follow_view(const QModelIndex& current)
{
    if (!syncing_)
        controller_.select(current.row());
}

void CommandsListWidget::cell_clicked(const QModelIndex& index)
{
    if (index.column() == CommandsListModel::MenuColumn)
        show_menu(view_->cell_centre(index), index.row());
    else
        emit list_clicked();
}

void CommandsListWidget::show_menu(QPoint global_position, int row)
{
    if (!controller_.command_at(row))
        return;
    controller_.select(row);
    // The keyboard can be in a row without selecting it; what the entries act on is what is selected.
    if (CommandsSelectionModel& selection = controller_.selection(); !selection.isRowSelected(row))
        selection.select(controller_.model().index(row, CommandsListModel::NameColumn),
                         QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (ListMenuEntry& entry : menu_entries(row))
        menu->addAction(entry.text, this, std::move(entry.run));
    // Its entries would then be about another command than the user saw.
    connect(&controller_, &CommandsListController::current_command_index_changed, menu, &QMenu::close);
    menu->popup(global_position);
}

std::vector<ListMenuEntry> CommandsListWidget::menu_entries(int row)
{
    const auto command = controller_.command_at(row);
    if (!command)
        return {};
    const bool one = controller_.selected_count() == 1;
    const CommandControllerBase* editor = app_.current_editor();
    std::vector<ListMenuEntry> entries;
    const auto add = [&](bool offered, const QString& text, std::function<void()> run) {
        if (offered)
            entries.push_back({text, std::move(run)});
    };
    add(one && editor && editor->allows_duplicate(), tr("Duplicate"), [this] { app_.duplicate_command(); });
    add(one, tr("Rename"), [this, row] { ask_names(row); });
    add(true, tr("Delete"), [this] { controller_.delete_selected(); });
    add(is_library_, tr("Move to Context Menu"), [this] { emit move_commands(); });
    add(!is_library_ && !holds_selected_builtin(), tr("Move to Commands Library"), [this] { emit move_commands(); });
    add(command->from_previous_session(), tr("Commit Changes"), [this, row] { controller_.commit(row); });
    add(one && command->has_discardable_changes(), tr("Discard Changes"), [this, row] { controller_.discard(row); });
    return entries;
}

bool CommandsListWidget::holds_selected_builtin() const
{
    return std::ranges::any_of(controller_.selection().selected_rows(), [&](int row) {
        return controller_.command_at(row)->type() != CommandType::Vellumark;
    });
}

void CommandsListWidget::ask_names(int row)
{
    const auto command = controller_.command_at(row);
    if (!command)
        return;
    auto* dialog = new ChangeCommandNameDlg(*command, window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, row] {
        controller_.rename(row, from_qstring(dialog->name()), from_qstring(dialog->name1()));
    });
    dialog->open();
}
