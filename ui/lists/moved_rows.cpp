#include "ui/lists/moved_rows.h"

#include <algorithm>
#include <numeric>

std::optional<std::vector<int>> moved_rows(int count, const std::vector<int>& rows, int target)
{
    std::vector<bool> dropped(static_cast<std::size_t>(count));
    for (const int row : rows)
        if (row >= 0 && row < count)
            dropped[static_cast<std::size_t>(row)] = true;
    const auto place = [&](int row) { return dropped[static_cast<std::size_t>(row)] ? 1 : row < target ? 0 : 2; };

    std::vector<int> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, place);
    if (std::ranges::is_sorted(order))
        return std::nullopt;
    return order;
}
