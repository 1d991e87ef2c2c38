#pragma once

#include <QPolygonF>
#include <QRect>

class QPainter;
class QString;

/// The height of a bar with a title, and the room that a section leaves for its title, in pixels.
inline constexpr int title_height = 28;

/// A triangle around `centre`: it points right, or down when expanded.
QPolygonF disclosure_triangle(QPointF centre, double size, bool expanded);
void draw_disclosure_triangle(QPainter& painter, QPointF centre, bool expanded);

/// Draws a title bar's title into `bar` but for its leftmost 18 pixels; one that is too long ends in an ellipsis.
void draw_bar_title(QPainter& painter, const QRect& bar, const QString& title);

/// Draws a section's title at the top left of what the painter paints on.
void draw_section_title(QPainter& painter, const QString& text);
