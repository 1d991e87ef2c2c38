#include "ui/widgets/disclosure_triangle.h"

#include "ui/widgets/title_painting.h"

#include <QPainter>

DisclosureTriangle::DisclosureTriangle(QWidget* parent) : DisclosureControl(parent)
{
    setAccessibleName(tr("Show or hide details"));
}

QSize DisclosureTriangle::sizeHint() const
{
    return {14, 14};
}

void DisclosureTriangle::activate()
{
    emit clicked();
}

void DisclosureTriangle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    draw_disclosure_triangle(painter, QPointF(width() / 2.0, height() / 2.0), expanded());
    draw_focus_mark(painter);
}
