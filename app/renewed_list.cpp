#include "app/renewed_list.h"

#include "ui/lists/commands_list_controller.h"

#include <algorithm>
#include <iterator>

namespace {

/// A command that a list can edit, whose saved form is `saved`.
std::shared_ptr<MVCommandBase> edited_form(const std::shared_ptr<MVCommandBase>& saved)
{
    auto command = saved->clone();
    command->set_committed(saved);
    return command;
}

}

namespace renewed_list {

CommandList edited(CommandList list, const CommandList& saved)
{
    for (auto& command : list)
        if (std::ranges::find(saved, command) != saved.end())
            command = edited_form(command);
    return list;
}

CommandList renewed(const CommandList& shown, const CommandList& saved)
{
    CommandList rest = shown, result;
    for (const auto& command : saved) {
        const auto same = std::ranges::find_if(rest, [&](const auto& other) { return other->equals(*command); });
        if (same == rest.end()) {
            result.push_back(edited_form(command));
            continue;
        }
        (*same)->set_from_previous_session(false);
        (*same)->set_committed(command);
        result.push_back(std::move(*same));
        rest.erase(same);
    }
    std::ranges::copy_if(rest, std::back_inserter(result), &MVCommandBase::from_previous_session);
    return result;
}

ListState state_of(CommandList commands, const CommandsListController& list)
{
    const auto row_of = [&commands](const auto& fits) {
        const auto found = std::ranges::find_if(commands, fits);
        return found == commands.end() ? -1 : static_cast<int>(found - commands.begin());
    };
    const auto& current = list.current_command();
    int row = row_of([&](const auto& command) { return command == current; });
    if (row < 0 && current)
        row = row_of([&](const auto& command) {
            return command->type() == current->type() && command->name() == current->name();
        });
    if (row < 0)
        row = std::min(std::max(list.current_index(), 0), static_cast<int>(commands.size()) - 1);
    return {std::move(commands), row};
}

}
