#include "ui/chips/item_part_base_draw.h"

#include "ui/chips/item_part_draw_fonts.h"
#include "ui/colours.h"
#include "ui/widgets/visible_whitespace.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// One line, ready to be painted.
QStaticText static_text(const QString& text, const QFont& font)
{
    QString line = text;
    QStaticText ready(line.replace(u'\n', u' '));
    ready.setTextFormat(Qt::PlainText);
    ready.prepare({}, font);
    return ready;
}

/// What is read aloud of a text whose blanks, tabs and line ends are shown as marks.
QString without_marks(QString text)
{
    return text.replace(QChar(0xb7), u' ').replace(QChar(0x2192), u' ').replace(line_feed_mark, u' ').simplified();
}

/// A frame of straight edges, which are painted faster than an outline.
void fill_frame(QPainter& painter, const QRectF& rect, double width, const QColor& colour)
{
    painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), width), colour);
    painter.fillRect(QRectF(rect.left(), rect.bottom() - width, rect.width(), width), colour);
    painter.fillRect(QRectF(rect.left(), rect.top(), width, rect.height()), colour);
    painter.fillRect(QRectF(rect.right() - width, rect.top(), width, rect.height()), colour);
}

/// The left edge of a text that begins where reading begins.
double text_left(const QPainter& painter, const QRectF& room, const QStaticText& text)
{
    return painter.layoutDirection() == Qt::RightToLeft ? room.right() - text.size().width() : room.left();
}

QColor hovered_variant(const QColor& colour)
{
    const auto stronger = [](int channel) { return std::max(0, 255 - 3 * (255 - channel)); };
    return {stronger(colour.red()), stronger(colour.green()), stronger(colour.blue()), colour.alpha()};
}

QColor grey_of(const QColor& colour)
{
    const int grey = static_cast<int>(0.1 * colour.blue() + 0.3 * colour.red() + 0.6 * colour.green()) / 2 + 128;
    return {grey, grey, grey};
}

/// Whole pixels of the screen, so that frames are crisp at every scale.
QRectF on_pixels(const QPainter& painter, const QRectF& rect)
{
    const QTransform to_device = painter.deviceTransform();
    const QRectF device = to_device.mapRect(rect);
    const QPointF top_left(std::round(device.left()), std::round(device.top()));
    const QPointF bottom_right(std::round(device.right()), std::round(device.bottom()));
    return to_device.inverted().mapRect(QRectF(top_left, bottom_right));
}

/// The width of a line that covers whole pixels of the screen.
double line_width(const QPainter& painter, double width)
{
    const double scale = painter.deviceTransform().m11();
    return scale > 0 ? std::max(1.0, std::floor(width * scale)) / scale : width;
}

void draw_frame(QPainter& painter, const QRectF& rect, const QPen& pen)
{
    const double half = line_width(painter, 1) / 2;
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRect(rect.adjusted(half, half, -half, -half));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

}

bool ItemPartBaseDraw::refresh(const ItemPartDrawFonts& fonts)
{
    QString title = palette_ ? tr("+ %1", "a type of part that can be added").arg(this->title()) : this->title();
    OptionSegments options = palette_ ? OptionSegments() : option_segments();
    if (title == title_ && options == options_)
        return false;
    title_ = std::move(title);
    options_ = std::move(options);
    measure(fonts);
    return true;
}

void ItemPartBaseDraw::measure(const ItemPartDrawFonts& fonts)
{
    constexpr int around = 15;
    int line = 0;
    title_text_ = static_text(title_, fonts.title());
    measured_.clear();
    for (const OptionSegment& option : options_) {
        const int advance = advance_of(option, fonts.width(option));
        measured_.push_back({static_text(option.text, fonts.of(option.kind)), advance});
        line += advance;
    }
    width_ = std::max(fonts.title_width(title_), line) + around;
}

void ItemPartBaseDraw::remeasure(const ItemPartDrawFonts& fonts)
{
    refresh(fonts);
    measure(fonts);
}

QString ItemPartBaseDraw::spoken_name() const
{
    QString spoken = title();
    QString before = tr(", ", "between a part's title and its options, spoken");
    for (const OptionSegment& option : options_) {
        if (option.text.isEmpty())
            continue;
        spoken += before + (option.kind == SegmentKind::Literal ? without_marks(option.text) : option.text);
        before = option.kind == SegmentKind::Label ? QStringLiteral(" ") : tr(", ");
    }
    return spoken;
}

void ItemPartBaseDraw::paint(QPainter& painter, const QRectF& rect, const ItemPartDrawFonts& fonts,
                             bool selected) const
{
    const QRectF place = on_pixels(painter, rect);
    const double head = palette_ ? place.height() : fonts.metrics().head;
    painter.fillRect(QRectF(place.topLeft(), QSizeF(place.width(), std::min(head, place.height()))),
                     shown(head_colour()));
    if (place.height() > head)
        painter.fillRect(place.adjusted(0, head, 0, 0), shown(colours::chip_body()));
    paint_frame(painter, place, selected);
    painter.setPen(shown(colours::chip_text()));
    paint_title(painter, place, fonts);
    if (!palette_)
        paint_options(painter, place, fonts);
}

void ItemPartBaseDraw::paint_frame(QPainter& painter, const QRectF& rect, bool selected) const
{
    const QColor border = shown(colours::chip_border());
    if (selected && !greyed_)
        draw_frame(painter, rect, QPen(Qt::blue, line_width(painter, 2)));
    else if (palette_)
        draw_frame(painter, rect, QPen(border, line_width(painter, 1), Qt::DashLine));
    else
        fill_frame(painter, rect, line_width(painter, 1), border);
}

void ItemPartBaseDraw::paint_title(QPainter& painter, const QRectF& rect, const ItemPartDrawFonts& fonts) const
{
    constexpr int inset = ChipMetrics::inset;
    const QRectF room = rect.adjusted(inset, inset, -inset, 0);
    painter.setFont(fonts.title());
    painter.drawStaticText(QPointF(text_left(painter, room, title_text_), room.top()), title_text_);
}

void ItemPartBaseDraw::paint_options(QPainter& painter, const QRectF& rect, const ItemPartDrawFonts& fonts) const
{
    const ChipMetrics& metrics = fonts.metrics();
    QRectF rest = rect.adjusted(ChipMetrics::inset, metrics.head + 2, -ChipMetrics::inset, 0);
    rest.setHeight(metrics.line);
    for (qsizetype i = 0; i < options_.size(); ++i) {
        const SegmentKind kind = options_[i].kind;
        const auto& [text, advance] = measured_[static_cast<std::size_t>(i)];
        const bool in_box = is_boxed(options_[i]);
        QRectF place = rest;
        if (in_box)
            place.setWidth(advance);
        if (painter.layoutDirection() == Qt::RightToLeft)
            place = mirrored(place, rect.left(), rect.width());
        if (in_box)
            painter.fillRect(place,
                             shown(kind == SegmentKind::Literal ? colours::literal_box() : colours::value_box()));
        painter.setFont(fonts.of(kind));
        const double top = place.top() + std::floor((place.height() - text.size().height()) / 2);
        painter.drawStaticText(QPointF(text_left(painter, place, text), top), text);
        rest.setLeft(rest.left() + advance);
    }
}

QColor ItemPartBaseDraw::head_colour() const
{
    const QColor colour = colours::dark_variant(color());
    return hovered_ ? hovered_variant(colour) : colour;
}

QColor ItemPartBaseDraw::shown(const QColor& colour) const
{
    return greyed_ ? grey_of(colour) : colour;
}
