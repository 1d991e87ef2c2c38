#include "engine/commands/sort_order.h"

#include "engine/items/mv_item_folder.h"

#include <algorithm>
#include <utility>

namespace {

using Items = std::vector<const MVItemBase*>;

std::size_t path_length(const MVItemBase& item)
{
    std::size_t length = item.name().size();
    for (const MVItemBase* node = item.parent(); node && !node->name().empty(); node = node->parent())
        length += node->name().size() + 1;
    return length;
}

/// Sorts by a number that is computed once an item, then by name.
template <typename Key>
void sort_by(Items& items, bool reversed, CancelPoint& cancel_point, Key key)
{
    std::vector<std::pair<std::uint64_t, const MVItemBase*>> keyed;
    keyed.reserve(items.size());
    for (const MVItemBase* item : items) {
        cancel_point.step();
        keyed.emplace_back(key(*item), item);
    }
    const auto less = [](const auto& left, const auto& right) {
        return left.first != right.first ? left.first < right.first : left.second->name() < right.second->name();
    };
    std::ranges::sort(keyed, [&](const auto& left, const auto& right) {
        cancel_point.step();
        return reversed ? less(right, left) : less(left, right);
    });
    std::ranges::transform(keyed, items.begin(), [](const auto& pair) { return pair.second; });
}

}

void sort_items(Items& items, Sort order, CancelPoint& cancel_point)
{
    const auto sort = [&](bool reversed, const auto& key) { sort_by(items, reversed, cancel_point, key); };
    const auto no_key = [](const MVItemBase&) { return std::uint64_t{0}; };
    const auto size = [](const MVItemBase& item) { return item.info().size; };
    const auto modified = [](const MVItemBase& item) { return static_cast<std::uint64_t>(item.info().modified); };
    switch (order) {
    case Sort::AsSelected: break;
    case Sort::Name: sort(false, no_key); break;
    case Sort::NameRev: sort(true, no_key); break;
    case Sort::Size: sort(false, size); break;
    case Sort::SizeRev: sort(true, size); break;
    case Sort::ModDate: sort(false, modified); break;
    case Sort::ModDateRev: sort(true, modified); break;
    case Sort::PathLength: sort(false, path_length); break;
    case Sort::PathLengthRev: sort(true, path_length); break;
    }
}
