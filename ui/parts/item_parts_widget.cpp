#include "ui/parts/item_parts_widget.h"

#include "ui/colours.h"
#include "ui/parts/accessible_chips.h"
#include "ui/widgets/scheme_change.h"

#include <QMouseEvent>

ItemPartsWidget::ItemPartsWidget(const std::vector<ItemPartBase::Type>& palette, TemplateEdits& edits,
                                 QWidget* parent)
    : QWidget(parent), edits_(edits), board_(palette, font(), label_width(), this), drag_(board_)
{
    install_accessible_chips();
    setAccessibleName(tr("Parts of the text"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setAutoFillBackground(true);
    take_scheme_colours();
    animation_timer_.setInterval(10);
    connect(&animation_timer_, &QTimer::timeout, this, &ItemPartsWidget::tick);
    connect(&board_, &ChipBoard::repaint_needed, this, &ItemPartsWidget::repaint_chip);
    connect(&board_, &ChipBoard::size_hint_changed, this, &QWidget::updateGeometry);
    connect(&board_, &ChipBoard::animation_needed, this, [this] {
        if (!animation_timer_.isActive())
            animation_timer_.start();
    });
    connect(&board_, &ChipBoard::edited, this, &ItemPartsWidget::push_parts_undo);
    connect(&board_, &ChipBoard::chip_renamed, this, announce_name);
    connect(&board_, &ChipBoard::selection_changed, this, &ItemPartsWidget::note_selection);
}

QString ItemPartsWidget::palette_label()
{
    return tr("Drag to add:");
}

QFont ItemPartsWidget::label_font() const
{
    QFont smaller = font();
    smaller.setPointSizeF(smaller.pointSizeF() * 0.95);
    return smaller;
}

int ItemPartsWidget::label_width() const
{
    return QFontMetrics(label_font()).boundingRect(palette_label()).width() + 8;
}

void ItemPartsWidget::set_parts(const ItemPartsList& parts)
{
    drag_.cancel();
    board_.set_parts(parts);
    row_cursor_ = 0;
    emit selection_changed();
    announce_row(*this);
}

void ItemPartsWidget::sync_parts(const ItemPartsList& parts)
{
    const bool are_others = !board_.shows(parts);
    if (are_others)
        drag_.cancel();
    board_.sync_parts(parts);
    if (are_others)
        announce_row(*this);
}

void ItemPartsWidget::push_parts_undo(const QString& text)
{
    ItemPartsList parts;
    for (const ChipPointer& chip : board_.row())
        parts.append(chip->part());
    edits_.change_list(parts, text);
    announce_row(*this);
}

void ItemPartsWidget::note_selection()
{
    if (board_.selected_index() >= 0)
        row_cursor_ = board_.selected_index();
    show_current_chip();
    reveal_chip(board_.selected_chip());
    emit selection_changed();
    announce_selection(told_selection_.lock(), board_.selected_chip());
    told_selection_ = board_.selected_chip();
}

void ItemPartsWidget::reveal_chip(const ChipPointer& chip)
{
    if (chip)
        emit reveal(shown_rect(chip->motion().goal()).toAlignedRect());
}

void ItemPartsWidget::activate(const ItemPartBaseDraw& chip)
{
    drag_.cancel();
    if (chip.is_palette()) {
        add(chip.type(), chip.rect());
        return;
    }
    zone_ = Zone::Row;
    board_.select(board_.row_index_of(chip));
}

void ItemPartsWidget::remove(const ItemPartBaseDraw& chip)
{
    delete_part(board_.row_index_of(chip));
}

void ItemPartsWidget::delete_part(int index)
{
    drag_.cancel();
    board_.remove(index);
}

void ItemPartsWidget::take_focus()
{
    zone_ = Zone::Row;
    setFocus(Qt::OtherFocusReason);
}

void ItemPartsWidget::tick()
{
    if (!board_.tick())
        animation_timer_.stop();
}

QRectF ItemPartsWidget::shown_rect(const QRectF& rect) const
{
    return layoutDirection() == Qt::RightToLeft ? mirrored(rect, 0, width()) : rect;
}

QPointF ItemPartsWidget::board_point(const QPointF& point) const
{
    return layoutDirection() == Qt::RightToLeft ? QPointF(width() - point.x(), point.y()) : point;
}

QRect ItemPartsWidget::pixels_of(const QRectF& area) const
{
    return shown_rect(area).toAlignedRect().adjusted(-2, -2, 2, 2);
}

void ItemPartsWidget::repaint_chip(const QRectF& area)
{
    update(pixels_of(area));
}

void ItemPartsWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    by_keys_ = false;
    const QPointF point = board_point(event->position());
    drag_.press(point);
    set_zone(point.y() < board_.metrics().band_top() ? Zone::Palette : Zone::Row);
}

void ItemPartsWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (drag_.is_pressed())
        drag_.drag(board_point(event->position()));
    else if (event->buttons() == Qt::NoButton)
        drag_.hover(board_point(event->position()));
}

void ItemPartsWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    drag_.release();
    if (selected_index() >= 0)
        zone_ = Zone::Row;
}

void ItemPartsWidget::leaveEvent(QEvent* event)
{
    drag_.cancel();
    drag_.leave();
    QWidget::leaveEvent(event);
}

void ItemPartsWidget::hideEvent(QHideEvent* event)
{
    drag_.cancel();
    QWidget::hideEvent(event);
}

void ItemPartsWidget::changeEvent(QEvent* event)
{
    if (is_scheme_change(*event)) {
        take_scheme_colours();
        update();
    } else if (event->type() == QEvent::FontChange) {
        board_.set_font(font(), label_width());
    }
    QWidget::changeEvent(event);
}

void ItemPartsWidget::take_scheme_colours()
{
    QPalette colours = palette();
    if (colours.color(QPalette::Window) == colours::palette_row_background())
        return;
    colours.setBrush(QPalette::Window, colours::palette_row_background());
    setPalette(colours);
}
