#include "app/main_app_ui.h"

#include "app/mirvanta_app.h"
#include "app/settings_keys.h"
#include "app/window_keys.h"
#include "ui/dialogs/no_commands_widget.h"
#include "ui/editor/command_controller_base.h"
#include "ui/editor/command_main_widget_base.h"
#include "ui/filters/vk_filter_widget_base.h"
#include "ui/lists/commands_list_controller.h"
#include "ui/lists/commands_list_widget.h"
#include "ui/lists/commands_table_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStackedLayout>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace {

// In the order in which the tabs are added.
constexpr int menu_tab = 0, library_tab = 1;

void tell_keys(QPushButton& button, const QKeySequence& keys)
{
    button.setToolTip(MainAppUi::tr("%1 (%2)").arg(button.text(), keys.toString(QKeySequence::NativeText)));
}

}

MainAppUi::MainAppUi(MirvantaApp& app) : GripSplitter(Qt::Horizontal, &app), app_(app)
{
    addWidget(make_left_pane());
    addWidget(make_right_pane());
    setStretchFactor(1, 1);
}

QWidget* MainAppUi::make_left_pane()
{
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    tabs_ = new QTabWidget;
    tabs_->setDocumentMode(true);
    // Both titles stay in sight, however long they are in another language.
    tabs_->setUsesScrollButtons(false);
    tabs_->addTab(make_list(app_.menu_list(), false), tr("Context Menu Commands"));
    tabs_->addTab(make_list(app_.library_list(), true), tr("Commands Library"));
    connect(tabs_, &QTabWidget::currentChanged, &app_, &MirvantaApp::active_tab_changed);
    layout->addWidget(tabs_);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 6);
    row->addStretch();
    save_ = new QPushButton(tr("Save"));
    tell_keys(*save_, window_keys::save_keys);
    connect(save_, &QPushButton::clicked, &app_, &MirvantaApp::save_commands_list);
    // The list above keeps its height while the button hides.
    QSizePolicy policy = save_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    save_->setSizePolicy(policy);
    row->addWidget(save_);
    layout->addLayout(row);
    return pane;
}

QWidget* MainAppUi::make_list(CommandsListController& controller, bool is_library)
{
    auto* list = new CommandsListWidget(app_, controller, is_library);
    connect(list, &CommandsListWidget::move_commands, &app_, &MirvantaApp::move_commands_to_other_list);
    connect(&controller, &CommandsListController::commands_list_changed, this, &MainAppUi::commands_list_changed);
    return list;
}

QWidget* MainAppUi::make_right_pane()
{
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(make_button_row());
    silent_items_ = new QLabel;
    silent_items_->setWordWrap(true);
    silent_items_->hide();
    layout->addWidget(silent_items_);
    pages_ = new QStackedLayout;
    no_command_ = new NoCommandsWidget(app_);
    pages_->addWidget(no_command_);
    layout->addLayout(pages_);
    return pane;
}

QWidget* MainAppUi::make_button_row()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add_button = [&](const QString& text, void (MirvantaApp::*pressed)()) {
        auto* button = new QPushButton(text);
        connect(button, &QPushButton::clicked, &app_, pressed);
        layout->addWidget(button);
        return button;
    };
    duplicate_ = add_button(tr("Duplicate"), &MirvantaApp::duplicate_command_btn_pressed);
    tell_keys(*duplicate_, window_keys::duplicate_keys);
    tell_keys(*add_button(tr("New"), &MirvantaApp::new_command_btn_pressed), window_keys::new_keys);
    layout->addStretch();
    delete_ = add_button(tr("Delete"), &MirvantaApp::delete_command_btn_pressed);
    return row;
}

void MainAppUi::add_editor(CommandControllerBase& editor)
{
    CommandMainWidgetBase* page = editor.create_main_widget(pages_->parentWidget());
    pages_->addWidget(page);
    editor_pages_.push_back(page);
}

void MainAppUi::show_page(CommandControllerBase* editor)
{
    duplicate_->setEnabled(editor && editor->allows_duplicate());
    if (editor) {
        pages_->setCurrentWidget(editor->main_widget());
        editor->main_widget()->page_shown();
        return;
    }
    const CommandsListController& list = app_.active_list();
    no_command_->set_state(&list == &app_.library_list(), list.is_empty());
    pages_->setCurrentWidget(no_command_);
}

std::vector<QWidget*> MainAppUi::focus_areas() const
{
    const CommandsListController& active = app_.active_list();
    std::vector<QWidget*> areas;
    for (const CommandsListWidget* list : findChildren<CommandsListWidget*>())
        if (&list->controller() == &active)
            areas.push_back(&list->view());
    if (const auto* page = qobject_cast<CommandMainWidgetBase*>(pages_->currentWidget()))
        std::ranges::copy(page->focus_areas(), std::back_inserter(areas));
    return areas;
}

void MainAppUi::press_duplicate()
{
    if (duplicate_->isEnabled())
        app_.duplicate_command_btn_pressed();
}

void MainAppUi::show_silent_items(std::size_t count)
{
    silent_items_->setText(
        tr("%n item(s) did not answer and are taken by their names alone", nullptr, static_cast<int>(count)));
    silent_items_->setVisible(count != 0);
}

void MainAppUi::show_save_button(bool visible)
{
    save_->setVisible(visible);
}

void MainAppUi::enable_delete_button(bool enabled)
{
    delete_->setEnabled(enabled);
}

void MainAppUi::show_tab_of(const CommandsListController& list)
{
    tabs_->setCurrentIndex(&list == &app_.library_list() ? library_tab : menu_tab);
}

CommandsListController& MainAppUi::list_of_tab(CommandLists& lists, int tab)
{
    return tab == library_tab ? lists.library() : lists.menu();
}

void MainAppUi::finish_edits()
{
    for (const CommandsListWidget* list : findChildren<CommandsListWidget*>())
        list->view().finish_edit();
    for (VKFilterWidgetBase* filter : findChildren<VKFilterWidgetBase*>())
        filter->finish_edit();
}

void MainAppUi::save_settings(QSettings& settings) const
{
    settings.setValue(settings_keys::horizontal_splitter, saveState());
    settings.setValue(settings_keys::active_tab, tabs_->currentIndex());
    for (const CommandMainWidgetBase* page : editor_pages_)
        page->save_settings(settings);
}

void MainAppUi::restore_settings(QSettings& settings)
{
    restoreState(settings.value(settings_keys::horizontal_splitter).toByteArray());
    const int tab = settings.value(settings_keys::active_tab, 0).toInt();
    if (tab >= 0 && tab < tabs_->count())
        tabs_->setCurrentIndex(tab);
}
