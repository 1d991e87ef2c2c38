#pragma once

#include "ui/chips/chip_board.h"

/// What the mouse does with the chips of a board: hovering, choosing, dragging. Points are the board's. Main thread
/// only.
class ChipDrag
{
public:
    /// The board outlives this.
    explicit ChipDrag(ChipBoard& board) : board_(board) {}

    bool is_pressed() const { return pressed_; }

    /// The chip under the mouse or in its hand; null for none.
    ChipPointer active() const { return active_.lock(); }

    /// Where the chip in hand would be put in, -1 for nowhere.
    int marker_x() const { return target_.marker_x; }

    /// The mouse moves with its button up.
    void hover(QPointF point);
    void leave();

    void press(QPointF point);
    /// The mouse moves with its button down. A few pixels don't move the chip yet.
    void drag(QPointF point);
    /// Lets the chip go: it is added, moved, thrown out, or goes back. What was only clicked is chosen: a palette
    /// chip is added at the end, one of the row is selected.
    void release();
    /// Puts everything back as it was before the press.
    void cancel();

private:
    void carry(ItemPartBaseDraw& chip, QPointF point);
    void aim(const ItemPartBaseDraw& chip, QPointF point);
    void set_target(const DropTarget& target);
    void end_press();
    void throw_out(const ItemPartBaseDraw& chip);
    void let_go_in_row(const ChipPointer& chip, int target);
    void let_go_from_palette(const ChipPointer& chip, int target);
    void repaint(const ItemPartBaseDraw& chip);

    ChipBoard& board_;
    std::weak_ptr<ItemPartBaseDraw> active_;
    bool pressed_ = false;
    QPointF press_point_;
    QPointF origin_; ///< the active chip's top left at the press
    int start_index_ = -1;
    std::vector<QRectF> press_rects_; ///< of the row
    DropTarget target_;
    bool in_band_ = false;
    bool carried_ = false; ///< farther than a hand shakes
};
