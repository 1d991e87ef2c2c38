#include "engine/items/child_map.h"

#include "engine/text/letters.h"
#include "platform/paths.h"

#include <algorithm>
#include <compare>
#include <utility>

bool ChildMap::name_less(std::u16string_view left, std::u16string_view right)
{
    const std::size_t common = std::min(left.size(), right.size());
    bool differ = false;
    for (std::size_t i = 0; i < common; ++i) {
        if (left[i] == right[i])
            continue;
        const char16_t left_unit = to_lower(left[i]), right_unit = to_lower(right[i]);
        if (left_unit != right_unit)
            return left_unit < right_unit;
        differ = true;
    }
    if (left.size() != right.size())
        return left.size() < right.size();
    return differ && std::is_lt(platform::compare_names(left, right));
}

bool ChildMap::ByName::operator()(const std::shared_ptr<MVItemBase>& left,
                                  const std::shared_ptr<MVItemBase>& right) const
{
    return name_less(left->name(), right->name());
}

bool ChildMap::ByName::operator()(const std::shared_ptr<MVItemBase>& left, std::u16string_view right) const
{
    return name_less(left->name(), right);
}

bool ChildMap::ByName::operator()(std::u16string_view left, const std::shared_ptr<MVItemBase>& right) const
{
    return name_less(left, right->name());
}

std::shared_ptr<MVItemBase> ChildMap::find(std::u16string_view name) const
{
    const auto found = items_.find(name);
    return found == items_.end() ? nullptr : *found;
}

MVItemBase& ChildMap::insert(const std::shared_ptr<MVItemBase>& item)
{
    return **items_.insert(items_.end(), item);
}

std::shared_ptr<MVItemBase> ChildMap::replace(std::shared_ptr<MVItemBase> item)
{
    auto place = items_.extract(items_.find(item));
    std::shared_ptr<MVItemBase> replaced = std::exchange(place.value(), std::move(item));
    items_.insert(std::move(place));
    return replaced;
}

void ChildMap::release_into(std::vector<std::shared_ptr<MVItemBase>>& items)
{
    while (!items_.empty())
        items.push_back(std::move(items_.extract(items_.begin()).value()));
}
