#include "engine/parts/item_part_factory.h"
#include "ui/parts/accessible_chips.h"
#include "ui/parts/item_parts_widget.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

#include <algorithm>

ChipPointer ItemPartsWidget::current_chip() const
{
    const bool in_palette = zone() == Zone::Palette;
    const Chips& chips = in_palette ? board_.palette() : board_.row();
    const int cursor = in_palette ? palette_cursor_ : row_cursor_;
    if (chips.empty())
        return nullptr;
    return chips[static_cast<std::size_t>(std::clamp(cursor, 0, static_cast<int>(chips.size()) - 1))];
}

/// Escape ends a drag, and would close the window if it got there. One that is held down goes on coming.
bool ItemPartsWidget::is_drags_escape(const QKeyEvent& event) const
{
    return event.key() == Qt::Key_Escape &&
           (QGuiApplication::mouseButtons() != Qt::NoButton || drag_.is_pressed() || event.isAutoRepeat());
}

bool ItemPartsWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && is_drags_escape(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void ItemPartsWidget::keyPressEvent(QKeyEvent* event)
{
    if (is_drags_escape(*event)) {
        drag_.cancel();
        return;
    }
    if (drag_.is_pressed() || !(zone() == Zone::Palette ? handle_palette_key(*event) : handle_row_key(*event))) {
        QWidget::keyPressEvent(event);
        return;
    }
    by_keys_ = true;
    update();
}

namespace {

/// Keys of the number block are like any others.
Qt::KeyboardModifiers modifiers_of(const QKeyEvent& event)
{
    return event.modifiers() & ~Qt::KeypadModifier;
}

bool is_press(const QKeyEvent& event)
{
    if (modifiers_of(event) != Qt::NoModifier)
        return false;
    return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}

int ItemPartsWidget::step_of(const QKeyEvent& event) const
{
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    if (event.key() == Qt::Key_Right)
        return forward;
    return event.key() == Qt::Key_Left ? -forward : 0;
}

int ItemPartsWidget::moved_cursor(const QKeyEvent& event, int cursor, const Chips& chips) const
{
    const int last = static_cast<int>(chips.size()) - 1;
    switch (event.key()) {
    case Qt::Key_Home: return 0;
    case Qt::Key_End: return last;
    case Qt::Key_Left:
    case Qt::Key_Right: return std::clamp(cursor + step_of(event), 0, last);
    default: return -1;
    }
}

bool ItemPartsWidget::handle_palette_key(const QKeyEvent& event)
{
    if (is_press(event)) {
        if (const ChipPointer chip = current_chip(); chip && !event.isAutoRepeat())
            activate(*chip);
        return true;
    }
    const int cursor = moved_cursor(event, palette_cursor_, board_.palette());
    if (cursor < 0 || modifiers_of(event) != Qt::NoModifier)
        return false;
    palette_cursor_ = cursor;
    show_current_chip();
    return true;
}

bool ItemPartsWidget::handle_row_key(const QKeyEvent& event)
{
    const bool has_selection = selected_index() >= 0;
    const int index = board_.row_index_of(*current_chip());
    const Qt::KeyboardModifiers modifiers = modifiers_of(event);
    if (modifiers == Qt::ControlModifier && step_of(event) != 0) {
        if (has_selection)
            move_chip(index, step_of(event));
        return true;
    }
    if (modifiers != Qt::NoModifier)
        return false;
    const int cursor = moved_cursor(event, index, board_.row());
    if (is_press(event))
        board_.select(index);
    else if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace)
        // Without a selection the frame tells which one goes.
        board_.remove(has_selection || by_keys_ ? index : -1);
    else if (cursor >= 0)
        // The first arrow selects the chip that the frame is around.
        board_.select(!has_selection && step_of(event) != 0 ? index : cursor);
    else
        return false;
    return true;
}

void ItemPartsWidget::move_chip(int index, int step)
{
    board_.reorder(index, step > 0 ? index + 2 : index - 1);
}

void ItemPartsWidget::add(ItemPartBase::Type type, const QRectF& origin)
{
    zone_ = zone(); // a row that had no chips doesn't take the keys to it
    const int selected = selected_index();
    const int end = static_cast<int>(board_.row().size());
    board_.add(ItemPartFactory::create(type), selected < 0 ? end : selected + 1, origin);
}

void ItemPartsWidget::duplicate(const ItemPartBaseDraw& chip)
{
    if (const int index = board_.row_index_of(chip); index >= 0)
        board_.add(chip.part()->clone(), index + 1, chip.rect());
}

void ItemPartsWidget::set_zone(Zone zone)
{
    zone_ = zone;
    show_current_chip();
}

void ItemPartsWidget::show_current_chip()
{
    update();
    if (!hasFocus())
        return;
    reveal_chip(current_chip());
    announce_focus(*this);
}

void ItemPartsWidget::focusInEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::TabFocusReason)
        zone_ = Zone::Palette;
    else if (event->reason() == Qt::BacktabFocusReason && !board_.row().empty())
        zone_ = Zone::Row;
    by_keys_ = event->reason() != Qt::MouseFocusReason;
    QWidget::focusInEvent(event);
    show_current_chip();
}

void ItemPartsWidget::focusOutEvent(QFocusEvent* event)
{
    drag_.cancel();
    QWidget::focusOutEvent(event);
    update();
}

bool ItemPartsWidget::focusNextPrevChild(bool next)
{
    if (drag_.is_pressed())
        return true;
    const Zone other = next ? Zone::Row : Zone::Palette;
    if (zone() == other || (next && board_.row().empty()))
        return QWidget::focusNextPrevChild(next);
    by_keys_ = true;
    set_zone(other);
    return true;
}

void ItemPartsWidget::contextMenuEvent(QContextMenuEvent* event)
{
    drag_.cancel();
    const bool by_mouse = event->reason() == QContextMenuEvent::Mouse;
    const ChipPointer chip = by_mouse ? board_.chip_at(board_point(event->pos())) : current_chip();
    if (!chip || chip->is_palette())
        return;
    zone_ = Zone::Row;
    board_.select(board_.row_index_of(*chip));
    show_menu(chip, by_mouse ? event->globalPos() : mapToGlobal(shown_rect(chip->rect()).center().toPoint()));
}

void ItemPartsWidget::show_menu(const ChipPointer& chip, const QPoint& global)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // The row may be another one by the time that the user has chosen.
    const auto add_entry = [&](const QString& text, auto act) {
        return menu->addAction(text, this, [act, aimed = std::weak_ptr(chip)] {
            if (const ChipPointer still = aimed.lock())
                act(*still);
        });
    };
    const auto move = [this](const ItemPartBaseDraw& aimed, int step) {
        if (const int index = board_.row_index_of(aimed); index >= 0)
            move_chip(index, step);
    };
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    add_entry(tr("Duplicate"), [this](const ItemPartBaseDraw& aimed) { duplicate(aimed); });
    add_entry(tr("Delete"), [this](const ItemPartBaseDraw& aimed) { remove(aimed); });
    QAction* left = add_entry(tr("Move Left"), [=](const ItemPartBaseDraw& aimed) { move(aimed, -forward); });
    QAction* right = add_entry(tr("Move Right"), [=](const ItemPartBaseDraw& aimed) { move(aimed, forward); });
    const int index = board_.row_index_of(*chip);
    (forward > 0 ? left : right)->setEnabled(index > 0);
    (forward > 0 ? right : left)->setEnabled(index + 1 < static_cast<int>(board_.row().size()));
    menu->popup(global);
}
