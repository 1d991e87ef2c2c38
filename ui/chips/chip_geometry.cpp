#include "ui/chips/chip_geometry.h"

#include "ui/widgets/easing.h"

#include <cmath>
#include <numeric>

std::vector<QRectF> side_by_side(const std::vector<int>& widths, int left, int top, int height)
{
    std::vector<QRectF> rects;
    rects.reserve(widths.size());
    for (const int width : widths) {
        rects.emplace_back(left, top, width, height);
        left += width + ChipMetrics::gap;
    }
    return rects;
}

int row_width(const std::vector<int>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), ChipMetrics::gap,
                           [](int sum, int width) { return sum + width + ChipMetrics::gap; });
}

DropTarget drop_target(const std::vector<QRectF>& row, double x, int dragged)
{
    constexpr int half_gap = ChipMetrics::gap / 2;
    std::size_t before = 0;
    while (before < row.size() && row[before].center().x() <= x)
        ++before;
    const int index = static_cast<int>(before);
    if (dragged >= 0 && (index == dragged || index == dragged + 1))
        return {};
    if (before < row.size())
        return {index, static_cast<int>(row[before].x() - ChipMetrics::gap) + half_gap};
    return {index, row.empty() ? half_gap : static_cast<int>(row.back().right()) + half_gap};
}

QRectF ChipMotion::Centred::rect() const
{
    return {centre - QPointF(size.width() / 2, size.height() / 2), size};
}

void ChipMotion::set_rect(const QRectF& rect)
{
    rect_ = rect;
    start_ = 0;
}

void ChipMotion::move_to(QPointF top_left)
{
    set_rect({top_left, rect_.size()});
}

bool ChipMotion::animate_to(const QRectF& target, qint64 now)
{
    if (rect_.topLeft() == target.topLeft() && rect_.size() == target.size())
        return false;
    from_ = Centred::of(rect_);
    to_ = Centred::of(target);
    start_ = now;
    return true;
}

bool ChipMotion::advance(qint64 now)
{
    if (!is_moving())
        return false;
    // A clock that was set back is not waited for.
    if (now < start_ || now - start_ >= duration) {
        set_rect(to_.rect());
        return false;
    }
    const double done = eased(static_cast<double>(now - start_) / duration);
    const QSizeF size = from_.size + done * (to_.size - from_.size);
    rect_ = Centred{from_.centre + done * (to_.centre - from_.centre),
                    QSizeF(std::round(size.width()), std::round(size.height()))}
                .rect();
    return true;
}

void ChipMotion::slide_in()
{
    from_ = {{to_.size.width() / 2, to_.centre.y()}, to_.size};
}
