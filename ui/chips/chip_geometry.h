#pragma once

#include <QRectF>

#include <vector>

/// Where chips stand: a row of chips to choose from, and below it a band with the row that is put together. In
/// pixels; x counts from where reading begins, so right-to-left layouts show all of it mirrored. The heights are
/// those of chips in a font of usual size.
struct ChipMetrics {
    static constexpr int gap = 4;
    static constexpr int inset = 5; ///< from a chip's edge to its texts

    int head = 24; ///< of a chip's coloured head; palette chips are heads alone
    int line = 26; ///< of the line with its options

    int chip() const { return head + line + 10; }

    int palette_top() const { return gap; }

    int band_top() const { return head + 2 * gap; }

    int band_height() const { return chip() + 2 * gap; }

    int row_top() const { return band_top() + gap; }

    int height() const { return band_top() + band_height() + gap; }

    QRectF marker(int x) const { return QRectF(x - 2, band_top(), 4, band_height()); }

    /// The band and, as a courtesy, one pixel below it.
    bool in_band(int y) const { return y >= band_top() && y <= band_top() + band_height(); }
};

/// Chips of these widths side by side, the first one at `left`.
std::vector<QRectF> side_by_side(const std::vector<int>& widths, int left, int top, int height);

/// The room that such chips take, with the gaps before the first and behind each.
int row_width(const std::vector<int>& widths);

/// The rectangle's mirror image in a room that begins at `left` and is that wide.
inline QRectF mirrored(const QRectF& rect, double left, double width)
{
    return {2 * left + width - rect.right(), rect.y(), rect.width(), rect.height()};
}

/// Where a chip that is let go comes to stand.
struct DropTarget {
    int index = -1;    ///< before which chip of the row; -1 for nowhere
    int marker_x = -1; ///< the middle of the gap there; -1 for none

    bool operator==(const DropTarget&) const = default;
};

/// The gap of a row that is nearest to `x`. Nowhere for the two gaps around the chip that is dragged, which stands at
/// `dragged` in the row or comes from elsewhere (-1).
DropTarget drop_target(const std::vector<QRectF>& row, double x, int dragged);

/// A chip's way to another place, around its centre. Times in milliseconds of one clock.
class ChipMotion
{
public:
    static constexpr qint64 duration = 200;

    const QRectF& rect() const { return rect_; }

    bool is_moving() const { return start_ != 0; }

    /// Where it stands once it has come to rest.
    QRectF goal() const { return is_moving() ? to_.rect() : rect_; }

    /// Puts the chip there at once.
    void set_rect(const QRectF& rect);
    void move_to(QPointF top_left);

    /// False when the chip stands there already.
    bool animate_to(const QRectF& target, qint64 now);
    /// Moves the chip to where it is at `now`; false once it has arrived or doesn't move.
    bool advance(qint64 now);
    /// Makes a way that has begun come from the beginning of the row, at the height and in the size of its end.
    void slide_in();

private:
    struct Centred {
        QPointF centre;
        QSizeF size;

        static Centred of(const QRectF& rect) { return {rect.center(), rect.size()}; }

        QRectF rect() const;
    };

    QRectF rect_{0, 0, 100, 24};
    qint64 start_ = 0;
    Centred from_;
    Centred to_;
};
