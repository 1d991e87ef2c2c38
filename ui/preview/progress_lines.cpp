#include "ui/preview/progress_lines.h"

#include "ui/preview/elided_label.h"

#include <QVBoxLayout>

ProgressLines::ProgressLines(QWidget* parent)
    : QWidget(parent), status_(new ElidedLabel(this)), item_(new ElidedLabel(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(status_);
    layout->addWidget(item_);
}

void ProgressLines::show_progress(const QString& status, const QString& item)
{
    status_->set_text(status);
    item_->set_text(item);
}
