#include "app/mirvanta_app.h"

#include "app/initial_selection.h"
#include "app/list_edits.h"
#include "app/main_app_ui.h"
#include "app/message_boxes.h"
#include "app/selection_paths.h"
#include "app/settings_keys.h"
#include "app/tool_row.h"
#include "engine/commands/vellumark_command.h"
#include "ui/dialogs/about_dlg.h"
#include "ui/editor/command_controller_base.h"
#include "ui/editor/command_main_widget_base.h"
#include "ui/lists/commands_list_model.h"
#include "ui/product.h"

#include <QDebug>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int menu_tab = 0, library_tab = 1;
/// Of the window, both ways.
constexpr int least_side = 600;

void give_buttons_one_width(const QDialogButtonBox& box)
{
    int width = 0;
    for (QAbstractButton* button : box.buttons()) {
        button->ensurePolished();
        width = std::max(width, button->sizeHint().width());
    }
    for (QAbstractButton* button : box.buttons())
        button->setMinimumWidth(width);
}

QMargins default_margins(const QStyle& style)
{
    return {style.pixelMetric(QStyle::PM_LayoutLeftMargin), style.pixelMetric(QStyle::PM_LayoutTopMargin),
            style.pixelMetric(QStyle::PM_LayoutRightMargin), style.pixelMetric(QStyle::PM_LayoutBottomMargin)};
}

}

MirvantaApp::MirvantaApp(const MakeEditors& make_editors)
    : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      selected_items_(std::make_shared<MVItemsSet>()), menu_list_(*this), library_list_(*this),
      stored_(menu_list_, library_list_), save_flow_(*this, stored_, menu_list_),
      tool_row_(new ToolRow(undo_stack_, this))
{
    setWindowTitle(QCoreApplication::applicationName());
    const bool loaded = load_stored_commands();
    start_intake();
    ui_ = std::make_unique<MainAppUi>(*this);
    connect_lists();
    lay_out();
    restore_window();
    connect(ui_.get(), &MainAppUi::commands_list_changed, this, &MirvantaApp::refresh_save_and_delete);
    refresh_save_and_delete();
    add_editors(make_editors);
    const bool in_library = loaded && select_initial_command(menu_list_, library_list_);
    show_list(in_library ? library_tab : menu_tab);
    // Nobody has told of a current command where the list is empty.
    current_command_changed();
}

MirvantaApp::~MirvantaApp() = default;

bool MirvantaApp::load_stored_commands()
{
    try {
        stored_.load();
        return true;
    } catch (const std::exception& error) {
        // With the window, which has to listen for selections however long the box stays.
        QTimer::singleShot(0, this, [this, failure = std::runtime_error(error.what())] {
            MessageBoxes::show_failure(this, tr("Failed to load stored commands"), failure);
        });
        return false;
    }
}

void MirvantaApp::start_intake()
{
    connect(&pipe_server_, &MirvantaNamedPipeServer::context_menu_selected, this,
            &MirvantaApp::on_context_menu_selected);
    connect(&probe_, &PathProbe::answered, &intake_, &SelectionIntake::take);
    connect(&intake_, &SelectionIntake::selection_ready, this, &MirvantaApp::take_selection);
    try {
        pipe_server_.start();
    } catch (const std::exception& error) {
        qDebug() << "Selections can't be received:" << error.what();
    }
}

void MirvantaApp::connect_lists()
{
    for (CommandsListController* list : {&menu_list_, &library_list_})
        connect(list, &CommandsListController::current_command_index_changed, this, [this, list] {
            if (list == &active_list())
                current_command_changed();
        });
}

void MirvantaApp::lay_out()
{
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    connect(box, &QDialogButtonBox::accepted, this, &MirvantaApp::on_ok);
    connect(box, &QDialogButtonBox::rejected, this, &MirvantaApp::on_cancel);
    connect(box, &QDialogButtonBox::helpRequested, this, &MirvantaApp::on_help);

    connect(tool_row_, &ToolRow::about_requested, this, &MirvantaApp::on_about);
    connect(tool_row_, &ToolRow::stepped, this, [this] {
        if (current_editor_)
            current_editor_->refresh();
    });

    // Struts rather than a minimum of the dialog itself, which would let texts of more room be cut.
    auto* frame = new QHBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addStrut(least_side);
    auto* outer = new QVBoxLayout;
    outer->addStrut(least_side);
    frame->addLayout(outer);
    outer->addWidget(tool_row_);
    auto* inner = new QVBoxLayout;
    inner->setContentsMargins(default_margins(*style()));
    inner->addWidget(ui_.get(), 1);
    inner->addWidget(box);
    outer->addLayout(inner, 1);
    give_buttons_one_width(*box);
    // The command of the last run is current and its text is there, so that Return is all it takes.
    box->button(QDialogButtonBox::Ok)->setFocus();
}

void MirvantaApp::restore_window()
{
    QSettings settings;
    restoreGeometry(settings.value(settings_keys::window_geometry).toByteArray());
    ui_->restore_settings(settings);
}

void MirvantaApp::add_editors(const MakeEditors& make_editors)
{
    if (make_editors)
        editors_ = make_editors(*this);
    QSettings settings;
    for (const auto& editor : editors_) {
        connect(editor.get(), &CommandControllerBase::current_command_changed, this,
                &MirvantaApp::current_command_index_changed);
        ui_->add_editor(*editor);
    }
    for (const auto& editor : editors_)
        editor->main_widget()->restore_settings(settings);
}

void MirvantaApp::reset_stored_commands()
{
    try {
        list_edits::reset(*this);
    } catch (const std::exception& error) {
        MessageBoxes::show_failure(this, tr("Failed to read built-in stored commands"), error);
    }
}

void MirvantaApp::close_with_accept()
{
    accept();
}

void MirvantaApp::done(int result)
{
    ui_->finish_edits();
    save_window_state();
    // Who sends a selection from now on is refused, and starts the program anew.
    pipe_server_.end_delivery();
    QDialog::done(result);
}

void MirvantaApp::save_window_state() const
{
    QSettings settings;
    settings.setValue(settings_keys::window_geometry, saveGeometry());
    settings.setValue(settings_keys::menu_row, menu_list_.current_index());
    settings.setValue(settings_keys::library_row, library_list_.current_index());
    ui_->save_settings(settings);
}

void MirvantaApp::on_ok()
{
    // Not every way to press a button takes the focus from an edit.
    ui_->finish_edits();
    const bool leave = save_flow_.settle_changes();
    refresh_save_and_delete();
    if (leave && (!current_editor_ || current_editor_->run_current_command()))
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

void MirvantaApp::on_context_menu_selected(int command_index, const QStringList& paths)
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    probe_.start(command_index, paths);
    if (current_editor_)
        current_editor_->selection_coming();
}

void MirvantaApp::take_selection(int command_index, const QStringList& paths)
{
    try {
        enter_selection(*selected_items_, paths);
        if (!selected_items_->items().empty())
            exemplar_.set_item(selected_items_->items().front());
        if (command_index >= 0) {
            show_list(menu_tab);
            menu_list_.select(command_index);
        }
        if (current_editor_)
            current_editor_->refresh();
        menu_list_.model().refresh_rows();
        library_list_.model().refresh_rows();
    } catch (const std::exception& error) {
        qDebug() << "Exception in on_context_menu_selected:" << error.what();
    } catch (...) {
        qDebug() << "Unknown exception in on_context_menu_selected";
    }
}

void MirvantaApp::current_command_index_changed()
{
    refresh_save_and_delete();
    active_list().model().refresh_row(active_list().current_index());
}

void MirvantaApp::current_command_changed()
{
    const auto accepts = [this](const auto& editor) {
        return editor->set_current_command(active_list().current_command());
    };
    const auto editor = std::ranges::find_if(editors_, accepts);
    current_editor_ = editor == editors_.end() ? nullptr : editor->get();
    ui_->show_page(current_editor_);
}

void MirvantaApp::active_tab_changed(int tab_index)
{
    active_list_ = tab_index;
    current_command_changed();
    refresh_save_and_delete();
}

void MirvantaApp::show_list(int list)
{
    active_list_ = list;
    ui_->show_tab(list);
}

void MirvantaApp::refresh_save_and_delete()
{
    ui_->show_save_button(stored_.has_unsaved_changes());
    ui_->enable_delete_button(!active_list().is_empty());
}

void MirvantaApp::show_menu_list()
{
    show_list(menu_tab);
}

void MirvantaApp::duplicate_command()
{
    list_edits::duplicate(*this);
}

void MirvantaApp::duplicate_command_btn_pressed()
{
    duplicate_command();
}

void MirvantaApp::new_command_btn_pressed()
{
    list_edits::add(*this, std::make_shared<VellumarkCommand>(), tr("New Command"));
}

void MirvantaApp::delete_command_btn_pressed()
{
    active_list().delete_selected();
}

void MirvantaApp::move_commands_to_other_list()
{
    list_edits::move_to_other_list(*this);
}

bool MirvantaApp::save_commands_list()
{
    ui_->finish_edits();
    const bool saved = save_flow_.save();
    refresh_save_and_delete();
    return saved;
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
