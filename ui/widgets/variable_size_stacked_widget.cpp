#include "ui/widgets/variable_size_stacked_widget.h"

#include <QVBoxLayout>

#include <algorithm>

VariableSizeStackedWidget::VariableSizeStackedWidget(QWidget* parent)
    : QWidget(parent), layout_(new QVBoxLayout(this))
{
    layout_->setContentsMargins(0, 0, 0, 0);
}

int VariableSizeStackedWidget::add_page(QWidget* page)
{
    // Hidden before it gets into the layout, which would show it otherwise.
    if (pages_.empty())
        current_index_ = 0;
    else
        page->hide();
    layout_->addWidget(page);
    pages_.push_back(page);
    return static_cast<int>(pages_.size()) - 1;
}

int VariableSizeStackedWidget::index_of(const QWidget* page) const
{
    const auto found = std::ranges::find(pages_, page);
    return found == pages_.end() ? -1 : static_cast<int>(found - pages_.begin());
}

QWidget* VariableSizeStackedWidget::current_widget() const
{
    return current_index_ < 0 ? nullptr : pages_[static_cast<std::size_t>(current_index_)];
}

void VariableSizeStackedWidget::setCurrentIndex(int index)
{
    if (index < 0 || index >= static_cast<int>(pages_.size()) || index == current_index_)
        return;
    current_widget()->hide();
    current_index_ = index;
    current_widget()->show();
}

void VariableSizeStackedWidget::setCurrentWidget(QWidget* page)
{
    setCurrentIndex(index_of(page));
}
