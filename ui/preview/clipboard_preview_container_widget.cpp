#include "ui/preview/clipboard_preview_container_widget.h"

#include "ui/preview/clipboard_preview_widget.h"
#include "ui/preview/no_paths_info_widget.h"

ClipboardPreviewContainerWidget::ClipboardPreviewContainerWidget(QWidget* parent)
    : QStackedWidget(parent), preview_(new ClipboardPreviewWidget(this)), no_paths_(new NoPathsInfoWidget(this))
{
    addWidget(preview_);
    addWidget(no_paths_);
}

void ClipboardPreviewContainerWidget::show_page_for(std::size_t selection_count)
{
    if (selection_count != 0)
        setCurrentWidget(preview_);
    else
        setCurrentWidget(no_paths_);
}

void ClipboardPreviewContainerWidget::set_text(const QString& text)
{
    preview_->set_text(text);
}

void ClipboardPreviewContainerWidget::show_updating()
{
    preview_->show_updating();
}

void ClipboardPreviewContainerWidget::show_failure(const QString& reason)
{
    preview_->show_failure(reason);
}

void ClipboardPreviewContainerWidget::show_progress(const QString& status, const QString& item)
{
    preview_->show_progress(status, item);
}
