#pragma once

#include "ui/editor/command_main_widget_base.h"

#include <memory>

class AppServices;
class ClipboardPreviewContainerWidget;
class DisclosureHeader;
class EditingPane;
class GripSplitter;
class VellumarkCommand;
class VellumarkController;

/// The page of a file-name command: its editing pane, hidden until the user opens it, above the preview.
class VellumarkMainWidget final : public CommandMainWidgetBase
{
    Q_OBJECT

public:
    VellumarkMainWidget(AppServices& app, VellumarkController& controller, QWidget* parent);

    /// Shows the command's fields as they now are, and the preview, or how to select something when nothing is
    /// selected.
    void set_command(const std::shared_ptr<VellumarkCommand>& command);

    /// Reads anew what a section shows of the others' fields.
    void update_sections();

    void set_preview_text(const QString& text);
    void show_preview_updating();
    void show_preview_failure(const QString& reason);
    void show_preview_progress(const QString& status, const QString& item);

    /// Shows or hides the editing pane and turns the header's triangle.
    void set_expanded(bool expanded);

    std::vector<QWidget*> focus_areas() const override;
    void save_settings(QSettings& settings) const override;
    void restore_settings(QSettings& settings) override;

private slots:
    void on_view_edit_header_toggled(bool expanded);

private:
    void make_room_for_pane();

    AppServices& app_;
    DisclosureHeader* header_ = nullptr;
    GripSplitter* splitter_ = nullptr;
    EditingPane* pane_ = nullptr;
    ClipboardPreviewContainerWidget* preview_ = nullptr;
};
