#include "ui/editor/vellumark_main_widget.h"

#include "engine/items/mv_items_set.h"
#include "ui/app_services.h"
#include "ui/editor/editing_pane.h"
#include "ui/editor/vellumark_controller.h"
#include "ui/preview/clipboard_preview_container_widget.h"
#include "ui/selection_services.h"
#include "ui/widgets/disclosure_header.h"
#include "ui/widgets/grip_splitter.h"

#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QLatin1StringView splitter_key("VKVerticalSplitter"), pane_open_key("VKEditingPaneOpen");

}

VellumarkMainWidget::VellumarkMainWidget(AppServices& app, VellumarkController& controller, QWidget* parent)
    : CommandMainWidgetBase(controller, parent), app_(app), header_(new DisclosureHeader(tr("View/Edit"))),
      splitter_(new GripSplitter(Qt::Vertical)), pane_(new EditingPane(app)),
      preview_(new ClipboardPreviewContainerWidget)
{
    header_->setToolTip(tr("F6 goes from the list of commands to the editor, and on to the preview"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(header_);
    layout->addWidget(splitter_, 1);
    pane_->hide();
    splitter_->addWidget(pane_);
    splitter_->addWidget(preview_);
    splitter_->setStretchFactor(1, 1);
    connect(header_, &DisclosureHeader::toggled, this, &VellumarkMainWidget::on_view_edit_header_toggled);
}

void VellumarkMainWidget::set_command(const std::shared_ptr<VellumarkCommand>& command)
{
    pane_->set_command(command);
    preview_->show_page_for(app_.selection().selected_items()->items().size());
}

void VellumarkMainWidget::update_sections()
{
    pane_->update_sections();
}

void VellumarkMainWidget::set_preview_text(const QString& text)
{
    preview_->set_text(text);
}

void VellumarkMainWidget::show_preview_updating()
{
    preview_->show_updating();
}

void VellumarkMainWidget::show_preview_failure(const QString& reason)
{
    preview_->show_failure(reason);
}

void VellumarkMainWidget::show_preview_progress(const QString& status, const QString& item)
{
    preview_->show_progress(status, item);
}

void VellumarkMainWidget::set_expanded(bool expanded)
{
    header_->set_expanded(expanded);
    on_view_edit_header_toggled(expanded);
}

/// The header stands in for the pane that it would show.
std::vector<QWidget*> VellumarkMainWidget::focus_areas() const
{
    return {pane_->isHidden() ? static_cast<QWidget*>(header_) : pane_, preview_};
}

void VellumarkMainWidget::save_settings(QSettings& settings) const
{
    settings.setValue(splitter_key, splitter_->saveState());
    settings.setValue(pane_open_key, header_->expanded());
}

void VellumarkMainWidget::restore_settings(QSettings& settings)
{
    splitter_->restoreState(settings.value(splitter_key).toByteArray());
    set_expanded(settings.value(pane_open_key, false).toBool());
}

void VellumarkMainWidget::on_view_edit_header_toggled(bool expanded)
{
    pane_->setVisible(expanded);
    // Once the splitter has placed it.
    if (expanded)
        QMetaObject::invokeMethod(this, &VellumarkMainWidget::make_room_for_pane, Qt::QueuedConnection);
}

/// A pane that nobody has given a height yet shows its first section.
void VellumarkMainWidget::make_room_for_pane()
{
    const QList<int> heights = splitter_->sizes();
    if (heights[0] > pane_->minimumSizeHint().height())
        return;
    const int all = heights[0] + heights[1];
    const int wanted = std::min(all / 2, pane_->wanted_height() + 2 * header_->height());
    splitter_->setSizes({wanted, all - wanted});
}
