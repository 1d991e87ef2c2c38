#include "ui/widgets/disclosure_header.h"

#include "ui/colours.h"
#include "ui/widgets/title_painting.h"

#include <QPainter>

DisclosureHeader::DisclosureHeader(const QString& title, QWidget* parent) : DisclosureControl(parent), title_(title)
{
    setAccessibleName(title);
    // Its hint has no width, so that it never widens what it heads; the height is the title's in every layout.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize DisclosureHeader::sizeHint() const
{
    return {0, title_height};
}

void DisclosureHeader::activate()
{
    set_expanded(!expanded());
    emit toggled(expanded());
}

void DisclosureHeader::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), hovered_ ? colours::title_bar_hover_background() : colours::title_bar_background());
    draw_disclosure_triangle(painter, QPointF(9, height() / 2.0), expanded());
    draw_bar_title(painter, rect(), title_);
    draw_focus_mark(painter);
}

void DisclosureHeader::enterEvent(QEnterEvent* event)
{
    set_hovered(true);
    DisclosureControl::enterEvent(event);
}

void DisclosureHeader::leaveEvent(QEvent* event)
{
    set_hovered(false);
    DisclosureControl::leaveEvent(event);
}

void DisclosureHeader::set_hovered(bool hovered)
{
    hovered_ = hovered;
    update();
}
