#include "ui/widgets/expandable_container_widget.h"

#include "ui/widgets/easing.h"

#include <QResizeEvent>

#include <chrono>

ExpandableContainerWidget::ExpandableContainerWidget(QWidget* parent) : QWidget(parent), timer_(this)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    timer_.setInterval(std::chrono::milliseconds(10));
    connect(&timer_, &QTimer::timeout, this, &ExpandableContainerWidget::tick);
}

void ExpandableContainerWidget::set_content(QWidget* content)
{
    content_ = content;
    if (content->parentWidget() != this) {
        content->setParent(this);
        content->show();
    }
    take_content_height();
}

void ExpandableContainerWidget::take_content_height()
{
    if (!content_)
        return;
    fit_content(width());
    set_current_height(content_->sizeHint().height());
}

QSize ExpandableContainerWidget::sizeHint() const
{
    return {0, current_height_};
}

void ExpandableContainerWidget::animate_to_new_height()
{
    const int height = content_ ? content_->sizeHint().height() : current_height_;
    if (height == current_height_)
        return;
    fit_content(content_->width());
    animation_ = {.from = current_height_, .to = height, .start = animation_clock()};
    timer_.start();
}

void ExpandableContainerWidget::tick()
{
    const qint64 now = animation_clock();
    if (animation_.is_over(now))
        timer_.stop();
    set_current_height(animation_.height_at(now));
}

void ExpandableContainerWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fit_content(event->size().width());
}

void ExpandableContainerWidget::set_current_height(int height)
{
    current_height_ = height;
    updateGeometry();
}

void ExpandableContainerWidget::fit_content(int content_width)
{
    if (content_)
        content_->resize(content_width, content_->sizeHint().height());
}
