#include "ui/lists/commands_comparison.h"

#include <algorithm>
#include <ranges>

bool same_commands(const CommandList& left, const CommandList& right)
{
    const auto counts = [](const auto& command) { return !command->from_previous_session(); };
    return std::ranges::equal(left | std::views::filter(counts), right | std::views::filter(counts),
                              [](const auto& l, const auto& r) { return l->equals(*r); });
}
