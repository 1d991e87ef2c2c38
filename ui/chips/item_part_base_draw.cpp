#include "ui/chips/item_part_base_draw.h"

#include "ui/chips/item_part_draw_fonts.h"
#include "ui/colours.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int text_flags = Qt::AlignLeft | Qt::TextSingleLine | Qt::TextDontClip;

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

void paint_frame(QPainter& painter, const QRectF& rect, const QPen& pen)
{
    const double half = line_width(painter, 1) / 2;
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRect(rect.adjusted(half, half, -half, -half));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

}

void ItemPartBaseDraw::refresh(const ItemPartDrawFonts& fonts)
{
    QString title = palette_ ? tr("+ %1", "a type of part that can be added").arg(this->title()) : this->title();
    OptionSegments options = palette_ ? OptionSegments() : option_segments();
    if (title == title_ && options == options_)
        return;
    title_ = std::move(title);
    options_ = std::move(options);
    measure(fonts);
}

void ItemPartBaseDraw::measure(const ItemPartDrawFonts& fonts)
{
    constexpr int around = 15;
    int line = 0;
    text_widths_.clear();
    for (const OptionSegment& option : options_) {
        text_widths_.push_back(fonts.width(option));
        line += advance_of(option.kind, text_widths_.back());
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
    QStringList words{title()};
    for (const OptionSegment& option : options_)
        if (!option.text.isEmpty())
            words += option.text;
    return words.join(tr(", ", "between a part's title and its options, spoken"));
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
    const QPen frame = selected && !greyed_ ? QPen(Qt::blue, line_width(painter, 2))
                                            : QPen(shown(colours::chip_border()), line_width(painter, 1),
                                                   palette_ ? Qt::DashLine : Qt::SolidLine);
    paint_frame(painter, place, frame);
    painter.setPen(shown(colours::chip_text()));
    painter.setFont(fonts.title());
    // Both edges, for in right-to-left layouts the text begins at the right one.
    const int inset = ChipMetrics::inset;
    painter.drawText(place.adjusted(inset, inset, -inset, 0), text_flags | Qt::AlignTop, title_);
    if (!palette_)
        paint_options(painter, place, fonts);
}

void ItemPartBaseDraw::paint_options(QPainter& painter, const QRectF& rect, const ItemPartDrawFonts& fonts) const
{
    const ChipMetrics& metrics = fonts.metrics();
    QRectF rest = rect.adjusted(ChipMetrics::inset, metrics.head + 2, -ChipMetrics::inset, 0);
    rest.setHeight(metrics.line);
    for (qsizetype i = 0; i < options_.size(); ++i) {
        const auto& [text, kind] = options_[i];
        const int advance = advance_of(kind, text_widths_[static_cast<std::size_t>(i)]);
        const bool in_box = is_boxed(kind) && !text.isEmpty();
        QRectF place = rest;
        if (in_box)
            place.setWidth(advance);
        if (painter.layoutDirection() == Qt::RightToLeft)
            place = mirrored(place, rect.left(), rect.width());
        if (in_box)
            painter.fillRect(place,
                             shown(kind == SegmentKind::Literal ? colours::literal_box() : colours::value_box()));
        painter.setFont(fonts.of(kind));
        painter.drawText(place, text_flags | Qt::AlignVCenter, text);
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
