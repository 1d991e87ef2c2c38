#include "engine/commands/sort_order.h"

#include "engine/items/mv_item_folder.h"

#include <algorithm>
#include <utility>

namespace {

using Items = std::vector<std::shared_ptr<MVItemBase>>;

std::size_t path_length(const MVItemBase& item)
{
    std::size_t length = item.name().size();
    for (const MVItemBase* node = item.parent(); node && !node->name().empty(); node = node->parent())
        length += node->name().size() + 1;
    return length;
}

/// Sorts by a number that is computed once an item, then by name.
template <typename Key>
void sort_by(Items& items, bool reversed, Key key)
{
    std::vector<std::pair<std::uint64_t, std::shared_ptr<MVItemBase>>> keyed;
    keyed.reserve(items.size());
    for (auto& item : items)
        keyed.emplace_back(key(*item), std::move(item));
    const auto less = [](const auto& left, const auto& right) {
        return left.first != right.first ? left.first < right.first : left.second->name() < right.second->name();
    };
    std::ranges::sort(
        keyed, [&](const auto& left, const auto& right) { return reversed ? less(right, left) : less(left, right); });
    std::ranges::transform(keyed, items.begin(), [](auto& pair) { return std::move(pair.second); });
}

}

void sort_items(Items& items, Sort order)
{
    const auto no_key = [](const MVItemBase&) { return std::uint64_t{0}; };
    const auto size = [](const MVItemBase& item) { return item.info().size; };
    const auto modified = [](const MVItemBase& item) { return static_cast<std::uint64_t>(item.info().modified); };
    switch (order) {
    case Sort::AsSelected: break;
    case Sort::Name: sort_by(items, false, no_key); break;
    case Sort::NameRev: sort_by(items, true, no_key); break;
    case Sort::Size: sort_by(items, false, size); break;
    case Sort::SizeRev: sort_by(items, true, size); break;
    case Sort::ModDate: sort_by(items, false, modified); break;
    case Sort::ModDateRev: sort_by(items, true, modified); break;
    case Sort::PathLength: sort_by(items, false, path_length); break;
    case Sort::PathLengthRev: sort_by(items, true, path_length); break;
    }
}
