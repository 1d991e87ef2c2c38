#pragma once

#include "ui/lists/commands_list_menu.h"

#include <QWidget>

#include <vector>

class AppServices;
class CommandsListController;
class CommandsTableView;

/// A list of stored commands with its context menu. Main thread only.
class CommandsListWidget final : public QWidget
{
    Q_OBJECT

public:
    CommandsListWidget(AppServices& app, CommandsListController& controller, bool is_library,
                       QWidget* parent = nullptr);
    ~CommandsListWidget() override;

    CommandsListController& controller() const { return controller_; }

    CommandsTableView& view() const { return *view_; }

    bool is_modified() const;

    /// What the context menu offers for a row of the list as it is selected now. The entries act on the row and the
    /// selection that they find when they are run.
    std::vector<ListMenuEntry> menu_entries(int row);

signals:
    /// The user wants the selected commands in the other list.
    void move_commands();
    /// A row was clicked, but not its menu button.
    void list_clicked();

private:
    void connect_view();
    void show_menu(QPoint global_position, int row);
    void cell_clicked(const QModelIndex& index);
    void follow_controller();
    void follow_view(const QModelIndex& current);
    bool holds_selected_builtin() const;
    void ask_names(int row);

    AppServices& app_;
    CommandsListController& controller_;
    CommandsTableView* view_;
    bool is_library_;
    /// On while the view follows the controller or gets new rows, so that its steps aren't taken for the user's.
    bool syncing_ = false;
};
