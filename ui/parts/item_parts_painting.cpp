#include "ui/colours.h"
#include "ui/parts/item_parts_widget.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

void ItemPartsWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect area = event->rect();
    const ChipMetrics& metrics = board_.metrics();
    painter.eraseRect(area);
    painter.setFont(label_font());
    painter.setPen(colours::palette_label());
    painter.drawText(shown_rect(QRectF(ChipMetrics::gap, metrics.palette_top(), board_.label_width(), metrics.head)),
                     Qt::AlignLeft | Qt::AlignVCenter, palette_label());
    painter.fillRect(0, metrics.band_top(), width(), metrics.band_height(), colours::parts_work_band());
    if (board_.row().empty())
        paint_row_hint(painter);
    paint_chips(painter, area);
    if (drag_.marker_x() >= 0)
        painter.fillRect(shown_rect(metrics.marker(drag_.marker_x())), colours::insertion_marker());
    if (const ChipPointer active = drag_.active())
        paint_chip(painter, *active);
    if (hasFocus() && by_keys_)
        paint_focus(painter);
}

void ItemPartsWidget::paint_row_hint(QPainter& painter) const
{
    const ChipMetrics& metrics = board_.metrics();
    const bool for_folders = edits_.which() == VellumarkCommand::Template::Folders;
    QRectF room(0, metrics.band_top(), width(), metrics.band_height());
    room.setLeft(room.height() / 3);
    QFont large = font();
    large.setWeight(QFont::Bold);
    large.setPointSize(13);
    painter.setFont(large);
    painter.setPen(colours::work_band_placeholder());
    const QString hint = for_folders ? tr("Drag and drop parts here to set the text for each folder")
                                     : tr("Drag and drop parts here to set the text for each file");
    const bool is_too_long = painter.fontMetrics().horizontalAdvance(hint) > room.width();
    painter.drawText(shown_rect(room), Qt::AlignLeft | Qt::AlignVCenter | (is_too_long ? Qt::TextWordWrap : 0), hint);
}

void ItemPartsWidget::paint_chip(QPainter& painter, const ItemPartBaseDraw& chip) const
{
    const bool selected = &chip == board_.selected_chip().get();
    chip.paint(painter, shown_rect(chip.rect()), board_.fonts(), selected);
}

void ItemPartsWidget::paint_chips(QPainter& painter, const QRect& area) const
{
    const ChipPointer active = drag_.active();
    for (const Chips* chips : {&board_.palette(), &board_.row()})
        for (const ChipPointer& chip : *chips)
            if (chip != active && pixels_of(chip->rect()).intersects(area))
                paint_chip(painter, *chip);
}

void ItemPartsWidget::paint_focus(QPainter& painter) const
{
    const ChipPointer chip = current_chip();
    if (!chip)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.state |= QStyle::State_KeyboardFocusChange;
    option.rect = pixels_of(chip->rect());
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}
