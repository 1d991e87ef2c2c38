#include "ui/filters/hover_toggle_row.h"

#include "ui/colours.h"
#include "ui/widgets/disclosure_triangle.h"
#include "ui/widgets/field_manners.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocumentFragment>

HoverToggleRow::HoverToggleRow(QWidget* parent)
    : QWidget(parent), triangle_(new DisclosureTriangle), label_(new QLabel)
{
    setAttribute(Qt::WA_Hover);
    label_->setTextFormat(Qt::RichText);
    align_by_layout(*label_);
    label_->setCursor(Qt::PointingHandCursor);
    // A long pattern is cut off rather than makes the window wider.
    label_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label_->installEventFilter(this);
    triangle_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(4);
    layout->addWidget(triangle_);
    layout->addWidget(label_, 1);
    connect(triangle_, &DisclosureTriangle::clicked, this, &HoverToggleRow::clicked);
}

void HoverToggleRow::set_text(const QString& text)
{
    if (label_->text() == text)
        return;
    label_->setText(text);
    triangle_->setAccessibleName(QTextDocumentFragment::fromHtml(text).toPlainText().simplified());
}

void HoverToggleRow::set_expanded(bool expanded)
{
    triangle_->set_expanded(expanded);
}

bool HoverToggleRow::event(QEvent* event)
{
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave)
        set_hovered(event->type() == QEvent::HoverEnter);
    return QWidget::event(event);
}

bool HoverToggleRow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonPress || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
        return QWidget::eventFilter(watched, event);
    triangle_->setFocus(Qt::MouseFocusReason);
    emit clicked();
    return true;
}

void HoverToggleRow::paintEvent(QPaintEvent* event)
{
    if (hovered_)
        QPainter(this).fillRect(event->rect(), colours::title_bar_hover_background());
}

void HoverToggleRow::set_hovered(bool hovered)
{
    hovered_ = hovered;
    update();
}
