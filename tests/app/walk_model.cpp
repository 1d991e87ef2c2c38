#include "walk_model.h"

#include <algorithm>

bool WalkSnapshot::equals(const WalkSnapshot& other) const
{
    const auto same = [](const CommandList& one, const CommandList& two) {
        return std::ranges::equal(one, two, [](const auto& a, const auto& b) { return a->equals(*b); });
    };
    return presets == other.presets && std::ranges::equal(lists, other.lists, same);
}

WalkSnapshot WalkSnapshot::deep_copy() const
{
    WalkSnapshot copy = *this;
    for (CommandList& list : copy.lists)
        for (auto& each : list)
            each = each->clone();
    return copy;
}

WalkSnapshot& WalkModel::follow(const std::string& step, const MVCommandBase* edited, bool joins)
{
    history.resize(static_cast<std::size_t>(place) + 1);
    if (!joins || now().step != step || now().edited != edited) {
        history.push_back(now().deep_copy());
        ++place;
        now().step = step;
        now().edited = edited;
    }
    return now();
}
