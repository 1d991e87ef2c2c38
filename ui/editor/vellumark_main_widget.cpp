#include "ui/editor/vellumark_main_widget.h"

#include "engine/items/mv_items_set.h"
#include "ui/app_services.h"
#include "ui/editor/vellumark_controller.h"
#include "ui/preview/clipboard_preview_container_widget.h"
#include "ui/selection_services.h"
#include "ui/widgets/disclosure_header.h"
#include "ui/widgets/grip_splitter.h"

#include <QScrollArea>
#include <QSettings>
#include <QVBoxLayout>

namespace {

constexpr QLatin1StringView splitter_key("VKVerticalSplitter");

}

VellumarkMainWidget::VellumarkMainWidget(AppServices& app, VellumarkController& controller, QWidget* parent)
    : CommandMainWidgetBase(controller, parent), app_(app), header_(new DisclosureHeader(tr("View/Edit"))),
      splitter_(new GripSplitter(Qt::Vertical)), sections_(new QScrollArea),
      preview_(new ClipboardPreviewContainerWidget)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(header_);
    layout->addWidget(splitter_, 1);
    sections_->setWidgetResizable(true);
    sections_->setAccessibleName(tr("Edit"));
    sections_->hide();
    splitter_->addWidget(sections_);
    splitter_->addWidget(preview_);
    splitter_->setStretchFactor(1, 1);
    connect(header_, &DisclosureHeader::toggled, this, &VellumarkMainWidget::on_view_edit_header_toggled);
}

void VellumarkMainWidget::set_command(const std::shared_ptr<VellumarkCommand>& /*command*/)
{
    preview_->show_page_for(app_.selection().selected_items()->items().size());
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
    sections_->setVisible(expanded);
}

void VellumarkMainWidget::save_settings(QSettings& settings) const
{
    settings.setValue(splitter_key, splitter_->saveState());
}

void VellumarkMainWidget::restore_settings(QSettings& settings)
{
    splitter_->restoreState(settings.value(splitter_key).toByteArray());
}

void VellumarkMainWidget::on_view_edit_header_toggled(bool expanded)
{
    sections_->setVisible(expanded);
}
