#include "ui/editor/vellumark_controller.h"

#include "ui/app_services.h"
#include "ui/editor/copy_step.h"
#include "ui/editor/vellumark_main_widget.h"
#include "ui/preview/wait_for_text_dlg.h"
#include "ui/selection_services.h"

VellumarkController::VellumarkController(AppServices& app, platform::Clipboard& clipboard, QObject* parent)
    : CommandControllerBase(app, parent), clipboard_(clipboard),
      generator_(app.selection().selected_items(), app.selection().selection_readers(), this)
{
    connect(&generator_, &PreviewGenerator::text_updating, this, &VellumarkController::on_preview_text_updating);
    connect(&generator_, &PreviewGenerator::text_ready, this, &VellumarkController::on_preview_text_ready);
}

CommandMainWidgetBase* VellumarkController::create_main_widget(QWidget* parent)
{
    page_ = new VellumarkMainWidget(app(), *this, parent);
    set_main_widget(page_);
    connect(&generator_, &PreviewGenerator::progress_changed, page_, &VellumarkMainWidget::show_preview_progress);
    return page_;
}

bool VellumarkController::set_current_command(const std::shared_ptr<MVCommandBase>& command)
{
    // Whoever pressed OK meant the command before.
    if (command != current_command_)
        stop_waiting();
    current_command_ = std::dynamic_pointer_cast<VellumarkCommand>(command);
    if (!current_command_)
        return false;
    show_command();
    emit current_command_changed();
    return true;
}

void VellumarkController::refresh()
{
    if (!current_command_)
        return;
    show_command();
    emit current_command_changed();
}

void VellumarkController::show_command()
{
    page_->set_command(current_command_);
    generator_.set_command(current_command_);
}

void VellumarkController::begin_update()
{
    generator_.begin_batch();
}

void VellumarkController::end_update()
{
    if (generator_.defer_updates())
        refresh();
}

void VellumarkController::suspend()
{
    stop_waiting();
    generator_.suspend();
}

void VellumarkController::resume()
{
    generator_.resume();
}

void VellumarkController::set_expanded(bool expanded)
{
    page_->set_expanded(expanded);
}

bool VellumarkController::run_current_command()
{
    // Whatever covers the page, its text is wanted now.
    if (generator_.is_suspended())
        resume();
    if (!is_text_coming())
        return copy_text();
    if (!wait_dialog_)
        open_wait_dialog();
    return false;
}

void VellumarkController::selection_coming()
{
    // Whoever is waiting meant the selection before.
    stop_waiting();
    if (!generator_.is_suspended())
        on_preview_text_updating();
}

bool VellumarkController::is_text_coming() const
{
    return generator_.is_updating() || app().selection().is_selection_coming();
}

void VellumarkController::stop_waiting()
{
    if (wait_dialog_)
        wait_dialog_->reject();
}

void VellumarkController::open_wait_dialog()
{
    auto* dialog = new WaitForTextDlg(page_->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, &VellumarkController::waiting_for_text_dlg_finished);
    connect(&generator_, &PreviewGenerator::progress_changed, dialog, &WaitForTextDlg::show_progress);
    if (app().selection().is_selection_coming())
        dialog->show_progress(waiting_for_selection(), {});
    wait_dialog_ = dialog;
    dialog->open();
}

bool VellumarkController::copy_text()
{
    CopyStep step(clipboard_, *page_->window());
    if (!generator_.failure().isEmpty())
        return step.refuse(generator_.failure());
    return step.run(current_command_, *app().selection().selected_items(), generator_.text());
}

void VellumarkController::update_after_curr_command_changed()
{
    generator_.set_command(current_command_);
    page_->update_sections();
    emit current_command_changed();
}

void VellumarkController::on_preview_text_updating()
{
    page_->show_preview_updating();
    if (app().selection().is_selection_coming())
        page_->show_preview_progress(waiting_for_selection(), {});
}

QString VellumarkController::waiting_for_selection()
{
    return tr("Waiting for the selected files...");
}

void VellumarkController::on_preview_text_ready(const QString& text)
{
    // It is of the selection before; the refresh that comes with the next one brings another.
    if (app().selection().is_selection_coming())
        return;
    if (generator_.failure().isEmpty())
        page_->set_preview_text(text);
    else
        page_->show_preview_failure(generator_.failure());
    if (!wait_dialog_)
        return;
    wait_dialog_->close();
    if (copy_text())
        app().close_with_accept();
}

void VellumarkController::waiting_for_text_dlg_finished()
{
    wait_dialog_ = nullptr;
}
