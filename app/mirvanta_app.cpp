#include "app/mirvanta_app.h"

#include "app/initial_selection.h"
#include "app/list_edits.h"
#include "app/main_app_ui.h"
#include "app/selection_paths.h"
#include "app/tool_row.h"
#include "app/window_keys.h"
#include "app/window_layout.h"
#include "app/window_state.h"
#include "engine/commands/vellumark_command.h"
#include "store/commands_merge.h"
#include "ui/dialogs/about_dlg.h"
#include "ui/editor/command_controller_base.h"
#include "ui/lists/commands_list_model.h"
#include "ui/presets/filter_presets_dialog.h"
#include "ui/presets/undo_presets_change.h"
#include "ui/product.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPainter>
#include <QUrl>

#include <algorithm>
#include <exception>
#include <utility>

namespace {

/// A step of taking a selection: nothing that fails there may end the program.
void log_failures(const auto& step)
{
    try {
        step();
    } catch (const std::exception& error) {
        qDebug() << "Exception in on_context_menu_selected:" << error.what();
    } catch (...) {
        qDebug() << "Unknown exception in on_context_menu_selected";
    }
}

}

MirvantaApp::MirvantaApp(const MakeEditors& make_editors, StoredFiles files)
    : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      selected_items_(std::make_shared<MVItemsSet>()), lists_(*this, steps_), stored_(lists_, presets_),
      stored_flow_(*this, lists_, stored_, std::move(files)), tool_row_(new ToolRow(steps_.stack(), this))
{
    setWindowTitle(QCoreApplication::applicationName());
    connect(&source_, &SelectionSource::arrived, this, &MirvantaApp::on_context_menu_selected);
    connect(&source_, &SelectionSource::ready, this, &MirvantaApp::take_selection);
    source_.start();
    ui_ = std::make_unique<MainAppUi>(*this);
    connect_all();
    window_keys::add(*this, *ui_);
    lay_out();
    window_state::restore(*this, *ui_);
    refresh_save_and_delete();
    if (make_editors)
        editors_.add(make_editors(*this), *ui_);
    lists_.activate(menu_list());
    // Nobody has told of either where the lists are empty; the tab may be the one of the last session.
    show_active_list();
    current_command_changed();
    stored_flow_.finish_loading();
}

MirvantaApp::~MirvantaApp() = default;

void MirvantaApp::connect_all()
{
    connect(&stored_flow_, &StoredFlow::loaded, this, &MirvantaApp::select_loaded);
    connect(&presets_, &Presets::changed, this, &MirvantaApp::refresh_save_and_delete);
    connect(&editors_, &CommandEditors::current_command_changed, this, &MirvantaApp::current_command_index_changed);
    connect(tool_row_, &ToolRow::step_requested, ui_.get(), &MainAppUi::finish_edits);
    connect(tool_row_, &ToolRow::about_requested, this, &MirvantaApp::on_about);
    connect(ui_.get(), &MainAppUi::commands_list_changed, this, &MirvantaApp::refresh_save_and_delete);
    connect(&lists_, &CommandLists::active_list_changed, this, &MirvantaApp::show_active_list);
    connect(&lists_, &CommandLists::current_command_changed, this, &MirvantaApp::current_command_changed);
    connect(&steps_, &UndoSteps::ended, this, &MirvantaApp::step_ended);
}

void MirvantaApp::lay_out()
{
    const QDialogButtonBox& buttons = lay_out_window(*this, *tool_row_, *ui_);
    connect(&buttons, &QDialogButtonBox::accepted, this, &MirvantaApp::on_ok);
    connect(&buttons, &QDialogButtonBox::rejected, this, &MirvantaApp::on_cancel);
    connect(&buttons, &QDialogButtonBox::helpRequested, this, &MirvantaApp::on_help);
}

void MirvantaApp::reset_stored_commands()
{
    stored_flow_.reset();
}

void MirvantaApp::close_with_accept()
{
    accept();
}

void MirvantaApp::done(int result)
{
    ui_->finish_edits();
    // First, for the next window waits for it, and a home folder that hangs holds up the rest.
    source_.end();
    keep_state();
    QDialog::done(result);
}

void MirvantaApp::keep_state()
{
    window_state::save(*this, *ui_, lists_);
}

void MirvantaApp::on_ok()
{
    // Not every way to press a button takes the focus from an edit.
    ui_->finish_edits();
    ok_holds_ = true;
    const bool leave = stored_flow_.settle_changes();
    refresh_save_and_delete();
    if (leave && ok_holds_ && editors_.run_current_command())
        accept();
}

void MirvantaApp::on_cancel()
{
    reject();
}

void MirvantaApp::on_help()
{
    QDesktopServices::openUrl(QUrl(QStringLiteral("https://%1/vellumark/help/4.7/index.html?configure.html")
                                       .arg(QLatin1StringView(product::web_site))));
}

void MirvantaApp::on_filters()
{
    // A screen reader presses buttons behind a dialog as well.
    if (auto* open = findChild<FilterPresetsDialog*>()) {
        open->raise();
        return;
    }
    ui_->finish_edits();
    auto* dialog = new FilterPresetsDialog(presets_.working(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog, base = presets_.working()] { take_presets(base, dialog->presets()); });
    dialog->open();
}

void MirvantaApp::take_presets(const Presets::List& base, const Presets::List& edited)
{
    // Another program's may have come in since the dialog was opened.
    const Presets::List& now = presets_.working();
    Presets::List presets =
        now == base ? edited : merge_commands({{}, {}, base}, {{}, {}, edited}, {{}, {}, now}).presets;
    if (presets != now)
        undo_stack().push(new UndoPresetsChange(lists_, presets_, std::move(presets), tr("Change Filter Presets")));
}

void MirvantaApp::on_context_menu_selected(int command_index, const QStringList& paths)
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    ok_holds_ = false;
    stored_flow_.call_off();
    log_failures([&] {
        source_.take(command_index, paths);
        if (editors_.current())
            editors_.current()->selection_coming();
    });
}

void MirvantaApp::take_selection(int command_index, const std::shared_ptr<NewSelection>& selection)
{
    log_failures([&] {
        selected_items_->swap(selection->items);
        ui_->show_silent_items(selection->silent);
        if (!selected_items_->items().empty())
            exemplar_.set_item(standing_alone(*selected_items_->items().front()));
        if (command_index >= 0) {
            // What is being typed belongs to the command before.
            ui_->finish_edits();
            lists_.activate(menu_list());
            awaited_row_ = command_index;
            if (stored_flow_.has_loaded())
                menu_list().select(std::exchange(awaited_row_, -1));
        }
    });
    // However much of it was taken: texts were given up for it, and whoever waits for new ones waits for this.
    log_failures([&] { editors_.refresh(); });
    log_failures([&] {
        menu_list().model().refresh_rows();
        library_list().model().refresh_rows();
    });
}

void MirvantaApp::current_command_index_changed()
{
    refresh_save_and_delete();
    active_list().model().refresh_row(active_list().current_index());
}

void MirvantaApp::current_command_changed()
{
    if (!steps_.is_running())
        show_current_command();
}

bool MirvantaApp::show_current_command()
{
    const bool is_other = editors_.set_current_command(active_list().current_command());
    if (is_other)
        ui_->show_page(editors_.current());
    return is_other;
}

void MirvantaApp::step_ended(const WrittenCommands& written)
{
    const CommandList updated = stored_.update_followers();
    for (CommandsListController* list : {&menu_list(), &library_list()})
        for (const auto& command : updated)
            list->command_changed(*command);
    const auto is_among = [this](const auto& commands) {
        return std::ranges::find(commands, active_list().current_command()) != commands.end();
    };
    if (show_current_command())
        ok_holds_ = false; // after a merge with another window's, say
    else if (is_among(written) || is_among(updated))
        editors_.refresh();
    show_save_and_delete();
}

void MirvantaApp::active_tab_changed(int tab_index)
{
    lists_.activate(MainAppUi::list_of_tab(lists_, tab_index));
}

void MirvantaApp::show_active_list()
{
    ui_->show_tab_of(active_list());
    refresh_save_and_delete();
}

void MirvantaApp::refresh_save_and_delete()
{
    if (!steps_.is_running())
        show_save_and_delete();
}

void MirvantaApp::show_save_and_delete()
{
    ui_->show_save_button(stored_.has_unsaved_changes());
    ui_->enable_delete_button(!active_list().is_empty());
}

void MirvantaApp::select_loaded(bool usable, const std::shared_ptr<VellumarkCommand>& last)
{
    if (usable)
        select_initial_command(last, lists_);
    if (!usable || awaited_row_ >= 0)
        lists_.activate(menu_list());
    current_command_changed();
    refresh_save_and_delete();
    menu_list().select(std::exchange(awaited_row_, -1));
}

void MirvantaApp::duplicate_command()
{
    ui_->finish_edits();
    list_edits::duplicate(*this);
}

void MirvantaApp::duplicate_command_btn_pressed()
{
    duplicate_command();
}

void MirvantaApp::new_command_btn_pressed()
{
    // Keys take no focus from a field.
    ui_->finish_edits();
    list_edits::add(*this, std::make_shared<VellumarkCommand>(), tr("New Command"));
}

void MirvantaApp::delete_command_btn_pressed()
{
    active_list().delete_selected();
}

void MirvantaApp::move_commands_to_other_list()
{
    list_edits::move_to_other_list(lists_);
}

bool MirvantaApp::save_commands_list()
{
    ui_->finish_edits();
    const bool saved = stored_flow_.save();
    refresh_save_and_delete();
    return saved;
}

void MirvantaApp::save_key_pressed()
{
    ui_->finish_edits();
    if (stored_.has_unsaved_changes())
        save_commands_list();
}

void MirvantaApp::on_about()
{
    auto* dialog = new AboutDlg(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // Whoever asked for it, such as a screen reader, does not wait until it is read.
    dialog->open();
}

void MirvantaApp::keyPressEvent(QKeyEvent* event)
{
    // They would press the default button while the user types in a field.
    if (!hasFocus() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        return;
    QDialog::keyPressEvent(event);
    if (event->modifiers() != Qt::ControlModifier)
        return;
    if (event->key() == Qt::Key_Z)
        tool_row_->undo();
    else if (event->key() == Qt::Key_Y)
        tool_row_->redo();
}

void MirvantaApp::paintEvent(QPaintEvent* event)
{
    QPainter(this).fillRect(event->rect(), palette().window());
}
