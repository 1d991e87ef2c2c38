#pragma once

#include "ui/editor/command_controller_base.h"
#include "ui/preview/preview_generator.h"

#include <QPointer>

namespace platform {
class Clipboard;
}
class VellumarkMainWidget;
class WaitForTextDlg;

/// The editor of file-name commands: it keeps the preview in step with the command and copies its text. Main thread
/// only.
class VellumarkController final : public CommandControllerBase
{
    Q_OBJECT

public:
    /// `clipboard` outlives the controller.
    VellumarkController(AppServices& app, platform::Clipboard& clipboard, QObject* parent = nullptr);

    CommandMainWidgetBase* create_main_widget(QWidget* parent) override;
    bool set_current_command(const std::shared_ptr<MVCommandBase>& command) override;
    void refresh() override;
    void begin_update() override;
    void end_update() override;
    /// A box that waits for the text goes.
    void suspend() override;
    void resume() override;
    void set_expanded(bool expanded) override;

    /// Copies the text, or while it is still being made opens a box that waits for it and then copies and closes the
    /// application. True when the text has reached the clipboard, or the user has turned it down for the checksum
    /// that was there.
    bool run_current_command() override;
    void selection_coming() override;

    const std::shared_ptr<VellumarkCommand>& current_command() const { return current_command_; }

public slots:
    /// The command's fields changed by an edit: makes the preview anew.
    void update_after_curr_command_changed();

private slots:
    void on_preview_text_updating();
    void on_preview_text_ready(const QString& text);
    void waiting_for_text_dlg_finished();

private:
    platform::Clipboard& clipboard_;
    std::shared_ptr<VellumarkCommand> current_command_;
    PreviewGenerator generator_;
    VellumarkMainWidget* page_ = nullptr;
    QPointer<WaitForTextDlg> wait_dialog_;

    void show_command();
    bool is_text_coming() const;
    static QString waiting_for_selection();
    void stop_waiting();
    void open_wait_dialog();
    bool copy_text();
};
