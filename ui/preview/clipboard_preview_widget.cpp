#include "ui/preview/clipboard_preview_widget.h"

#include "ui/colours.h"
#include "ui/preview/preview_text_edit.h"
#include "ui/preview/progress_lines.h"
#include "ui/widgets/header_label.h"
#include "ui/widgets/scheme_change.h"

#include <QLabel>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace {

enum Page { TextPage, UpdatingPage };

}

// The children are made without a parent, for they come in the order in which the layouts take them.
ClipboardPreviewWidget::ClipboardPreviewWidget(QWidget* parent)
    : QWidget(parent), text_edit_(new PreviewTextEdit), progress_(new ProgressLines), pages_(new QStackedLayout)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(new HeaderLabel(tr("Clipboard Preview")));
    layout->addLayout(pages_);
    text_edit_->setAccessibleName(tr("Clipboard Preview"));
    pages_->addWidget(text_edit_);
    pages_->addWidget(make_updating_page());
    update_background();
}

QWidget* ClipboardPreviewWidget::make_updating_page()
{
    auto* page = new QWidget(this);
    auto* label = new QLabel(tr("Updating..."), page);
    QFont italic = label->font();
    italic.setItalic(true);
    label->setFont(italic);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(label);
    layout->addWidget(progress_);
    layout->addStretch();
    return page;
}

void ClipboardPreviewWidget::set_text(const QString& text)
{
    text_edit_->show_text(text);
    pages_->setCurrentIndex(TextPage);
}

void ClipboardPreviewWidget::show_updating()
{
    progress_->show_progress({}, {});
    pages_->setCurrentIndex(UpdatingPage);
    // Nobody sees the rest of the old text come, and its memory can serve the new one.
    text_edit_->show_text({});
}

void ClipboardPreviewWidget::show_progress(const QString& status, const QString& item)
{
    progress_->show_progress(status, item);
}

void ClipboardPreviewWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (is_scheme_change(*event))
        update_background();
}

void ClipboardPreviewWidget::update_background()
{
    text_edit_->setStyleSheet(
        QStringLiteral("QPlainTextEdit { background-color: %1; }").arg(colours::preview_background().name()));
}
