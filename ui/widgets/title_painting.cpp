#include "ui/widgets/title_painting.h"

#include "ui/colours.h"

#include <QPainter>
#include <QTextOption>

namespace {

void set_title_style(QPainter& painter)
{
    QFont font = painter.font();
    font.setWeight(QFont::Bold);
    painter.setFont(font);
    painter.setPen(colours::title_text());
}

}

QPolygonF disclosure_triangle(QPointF centre, double size, bool expanded)
{
    // Half an edge of an equilateral triangle, and half of its height.
    const double edge = size * 0.5;
    const double height = size * 0.4330127;
    if (expanded)
        return {centre + QPointF(-edge, -height), centre + QPointF(edge, -height), centre + QPointF(0, height)};
    return {centre + QPointF(-height, -edge), centre + QPointF(-height, edge), centre + QPointF(height, 0)};
}

void draw_disclosure_triangle(QPainter& painter, QPointF centre, bool expanded)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours::title_text());
    painter.drawPolygon(disclosure_triangle(centre, 10, expanded));
    painter.restore();
}

void draw_bar_title(QPainter& painter, const QRect& bar, const QString& title)
{
    const QRect room = bar.adjusted(18, 0, 0, 0);
    painter.save();
    set_title_style(painter);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(title, Qt::ElideRight, room.width()));
    painter.restore();
}

void draw_section_title(QPainter& painter, const QString& text)
{
    QRectF room = painter.viewport();
    room.moveTo(4, 4);
    painter.save();
    set_title_style(painter);
    painter.drawText(room, text, QTextOption());
    painter.restore();
}
