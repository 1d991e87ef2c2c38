#include "store/preset_followers.h"

#include "engine/commands/vellumark_command.h"

#include <algorithm>

namespace {

/// Null for a command that follows none.
VellumarkCommand* as_follower(MVCommandBase& entry)
{
    auto* command = dynamic_cast<VellumarkCommand*>(&entry);
    return command && !command->file_filter_preset_uuid().empty() ? command : nullptr;
}

/// Whether anything changed.
bool update_one(VellumarkCommand& command, const std::vector<ExtensionsPreset>& presets)
{
    const auto found = std::ranges::find(presets, command.file_filter_preset_uuid(), &ExtensionsPreset::uuid);
    if (found == presets.end()) {
        command.set_file_filter_preset_uuid({});
        return true;
    }
    if (command.file_filter().filter_pattern() == found->extensions())
        return false;
    ItemFilter filter = command.file_filter();
    filter.set_filter_pattern(found->extensions());
    command.set_file_filter(std::move(filter));
    return true;
}

}

namespace preset_followers {

CommandList update(const CommandList& list, const std::vector<ExtensionsPreset>& presets)
{
    CommandList changed;
    for (const auto& entry : list)
        if (VellumarkCommand* command = as_follower(*entry); command && update_one(*command, presets))
            changed.push_back(entry);
    return changed;
}

CommandList updated(CommandList list, const std::vector<ExtensionsPreset>& presets)
{
    for (auto& entry : list)
        if (as_follower(*entry))
            entry = entry->clone();
    update(list, presets);
    return list;
}

}
