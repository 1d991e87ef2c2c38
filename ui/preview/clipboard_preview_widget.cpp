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

enum Page { TextPage, StatePage };

}

// The children are made without a parent, for they come in the order in which the layouts take them.
ClipboardPreviewWidget::ClipboardPreviewWidget(QWidget* parent)
    : QWidget(parent), text_edit_(new PreviewTextEdit), state_(new QLabel), progress_(new ProgressLines),
      pages_(new QStackedLayout)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(new HeaderLabel(tr("Clipboard Preview")));
    layout->addLayout(pages_);
    text_edit_->setAccessibleName(tr("Clipboard Preview"));
    pages_->addWidget(text_edit_);
    pages_->addWidget(make_state_page());
    update_background();
}

QWidget* ClipboardPreviewWidget::make_state_page()
{
    auto* page = new QWidget(this);
    QFont italic = state_->font();
    italic.setItalic(true);
    state_->setFont(italic);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(state_);
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
    show_state(tr("Updating..."));
    progress_->show_progress({}, {});
}

void ClipboardPreviewWidget::show_failure(const QString& reason)
{
    show_state(tr("The text could not be generated."));
    progress_->show_progress(reason, {});
}

void ClipboardPreviewWidget::show_state(const QString& state)
{
    state_->setText(state);
    pages_->setCurrentIndex(StatePage);
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
