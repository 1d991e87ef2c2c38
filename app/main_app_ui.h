#pragma once

#include "ui/widgets/grip_splitter.h"

#include <cstddef>
#include <vector>

class CommandControllerBase;
class CommandLists;
class CommandMainWidgetBase;
class CommandsListController;
class MirvantaApp;
class NoCommandsWidget;
class QLabel;
class QPushButton;
class QSettings;
class QStackedLayout;
class QTabWidget;

/// What fills the window: the two lists on the left, the page for the current command on the right.
class MainAppUi final : public GripSplitter
{
    Q_OBJECT

public:
    explicit MainAppUi(MirvantaApp& app);

    /// Makes the editor's page and puts it behind the others.
    void add_editor(CommandControllerBase& editor);

    /// Shows the page of the editor, or with null the one that says why there is none.
    void show_page(CommandControllerBase* editor);

    /// Tells how many of the selected items are taken by their names alone; nothing for none.
    void show_silent_items(std::size_t count);

    void show_save_button(bool visible);
    void enable_delete_button(bool enabled);

    /// The list that shows, then what the page that shows has of its own.
    std::vector<QWidget*> focus_areas() const;

    /// Nothing while the button is disabled.
    void press_duplicate();

    /// Shows the tab of one of the two lists.
    void show_tab_of(const CommandsListController& list);

    /// The list of a tab that there is.
    static CommandsListController& list_of_tab(CommandLists& lists, int tab);

    /// Takes over what is typed into a name that is being edited in a list, and into a filter's pattern.
    void finish_edits();

    /// The splitter, the tab and what the editors' pages keep.
    void save_settings(QSettings& settings) const;
    /// The splitter and the tab, which is left as it is when there is no such tab. An editor's page restores its own.
    void restore_settings(QSettings& settings);

signals:
    /// The commands of either list, or their order.
    void commands_list_changed();

private:
    QWidget* make_left_pane();
    QWidget* make_list(CommandsListController& controller, bool is_library);
    QWidget* make_right_pane();
    QWidget* make_button_row();

    MirvantaApp& app_;
    QTabWidget* tabs_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* duplicate_ = nullptr;
    QPushButton* delete_ = nullptr;
    QLabel* silent_items_ = nullptr;
    QStackedLayout* pages_ = nullptr;
    NoCommandsWidget* no_command_ = nullptr;
    std::vector<CommandMainWidgetBase*> editor_pages_;
};
