#include "ui/presets/undo_presets_change.h"

#include "store/preset_followers.h"

#include <utility>

UndoPresetsChange::UndoPresetsChange(CommandLists& lists, Presets& presets, Presets::List changed,
                                     const QString& text)
    : UndoStep(lists.steps(), text), presets_(presets), old_(presets.working()), new_(std::move(changed))
{
    add_followers(lists.menu().commands());
    add_followers(lists.library().commands());
}

void UndoPresetsChange::add_followers(const CommandList& list)
{
    const CommandList updated = preset_followers::updated(list, new_);
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (updated[i] == list[i])
            continue;
        const auto command = std::dynamic_pointer_cast<VellumarkCommand>(list[i]);
        const auto& changed = dynamic_cast<const VellumarkCommand&>(*updated[i]);
        followers_.push_back({command, command_fields::file_filter(*command), command_fields::file_filter(changed)});
    }
    std::erase_if(followers_, [](const Follower& one) { return one.old == one.changed; });
}

void UndoPresetsChange::put_old()
{
    put(old_, &Follower::old);
}

void UndoPresetsChange::put_new()
{
    put(new_, &Follower::changed);
}

void UndoPresetsChange::put(const Presets::List& presets, command_fields::FilterFields Follower::*fields)
{
    for (const Follower& one : followers_) {
        command_fields::set_file_filter(*one.command, one.*fields);
        steps().written(one.command);
    }
    presets_.set_working(presets);
}
