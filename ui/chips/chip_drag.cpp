#include "ui/chips/chip_drag.h"

#include "engine/parts/item_part_factory.h"

#include <utility>

void ChipDrag::repaint(const ItemPartBaseDraw& chip)
{
    emit board_.repaint_needed(chip.rect());
}

void ChipDrag::hover(QPointF point)
{
    const ChipPointer before = active();
    const ChipPointer now = board_.chip_at(point);
    if (now == before)
        return;
    leave();
    active_ = now;
    if (!now)
        return;
    now->set_hovered(true);
    repaint(*now);
}

void ChipDrag::leave()
{
    if (const ChipPointer chip = active()) {
        chip->set_hovered(false);
        repaint(*chip);
    }
    active_.reset();
}

void ChipDrag::press(QPointF point)
{
    hover(point);
    pressed_ = true;
    carried_ = false;
    press_point_ = point;
    const ChipPointer chip = active();
    board_.hold(chip.get());
    if (!chip)
        return;
    origin_ = (chip->is_palette() ? chip->motion().goal() : chip->rect()).topLeft();
    start_index_ = board_.row_index_of(*chip);
    target_ = {start_index_, -1};
    in_band_ = true;
    press_rects_.clear();
    for (const ChipPointer& each : board_.row())
        press_rects_.push_back(each->rect());
}

void ChipDrag::drag(QPointF point)
{
    const ChipPointer chip = active();
    if (!pressed_ || !chip)
        return;
    carry(*chip, point);
    aim(*chip, point);
}

void ChipDrag::carry(ItemPartBaseDraw& chip, QPointF point)
{
    constexpr double slack = 24;
    const QPointF way = point - press_point_;
    repaint(chip);
    const bool is_away = QPointF::dotProduct(way, way) > slack;
    carried_ |= is_away;
    chip.motion().move_to(is_away ? origin_ + way : origin_);
    in_band_ = board_.metrics().in_band(static_cast<int>(point.y()));
    chip.set_greyed(!chip.is_palette() && !in_band_);
    repaint(chip);
}

void ChipDrag::aim(const ItemPartBaseDraw& chip, QPointF point)
{
    set_target(in_band_ ? drop_target(press_rects_, point.x(), chip.is_palette() ? -1 : start_index_) : DropTarget{});
}

void ChipDrag::set_target(const DropTarget& target)
{
    const auto repaint_marker = [this] {
        if (target_.marker_x >= 0)
            emit board_.repaint_needed(board_.metrics().marker(target_.marker_x));
    };
    const bool is_other = target.marker_x != target_.marker_x;
    if (is_other)
        repaint_marker();
    target_ = target;
    if (is_other)
        repaint_marker();
}

void ChipDrag::end_press()
{
    pressed_ = false;
    in_band_ = false;
    board_.hold(nullptr);
    set_target({});
}

void ChipDrag::release()
{
    if (!pressed_)
        return;
    const ChipPointer chip = active();
    const DropTarget target = target_;
    const bool was_in_band = in_band_;
    end_press();
    if (!chip)
        board_.select(-1);
    else if (chip->is_palette())
        let_go_from_palette(chip, target.index);
    else if (was_in_band)
        let_go_in_row(chip, target.index);
    else
        throw_out(*chip);
}

void ChipDrag::throw_out(const ItemPartBaseDraw& chip)
{
    active_.reset();
    board_.remove(board_.row_index_of(chip));
    board_.select(-1);
}

void ChipDrag::let_go_in_row(const ChipPointer& chip, int target)
{
    const int index = board_.row_index_of(*chip);
    if (target < 0 || target == index || target == index + 1) {
        board_.send_home(*chip);
        board_.select(index);
    } else {
        board_.reorder(index, target);
    }
}

void ChipDrag::let_go_from_palette(const ChipPointer& chip, int target)
{
    if (target < 0 && carried_) {
        board_.send_home(*chip);
        board_.select(-1);
        return;
    }
    const int end = static_cast<int>(board_.row().size());
    const QRectF origin = chip->rect();
    chip->set_hovered(false);
    board_.regrow(chip);
    board_.add(ItemPartFactory::create(chip->type()), target < 0 ? end : target, origin);
    active_ = board_.selected_chip();
}

void ChipDrag::cancel()
{
    if (!pressed_)
        return;
    const ChipPointer chip = active();
    end_press();
    leave();
    if (!chip)
        return;
    chip->set_greyed(false);
    board_.send_home(*chip);
}
