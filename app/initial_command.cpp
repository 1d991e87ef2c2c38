#include "app/initial_command.h"

#include "engine/commands/vellumark_command.h"

#include <algorithm>
#include <optional>

namespace {

template <typename Condition>
std::optional<int> first_row(const CommandList& list, const Condition& condition)
{
    const auto found = std::ranges::find_if(list, condition);
    if (found == list.end())
        return std::nullopt;
    return static_cast<int>(found - list.begin());
}

}

InitialCommand initial_command(const VellumarkCommand* last, const CommandList& menu, const CommandList& library)
{
    if (!last) {
        const auto makes_text = [](const auto& command) { return command->type() == CommandType::Vellumark; };
        return {.row = first_row(menu, makes_text).value_or(0)};
    }
    const auto is_last = [last](const auto& command) { return command->equals(*last); };
    if (const auto row = first_row(menu, is_last))
        return {.row = *row};
    if (const auto row = first_row(library, is_last))
        return {.in_library = true, .row = *row};
    return {.row = static_cast<int>(menu.size()), .is_new = true};
}
