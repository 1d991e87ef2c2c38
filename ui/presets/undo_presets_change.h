#pragma once

#include "ui/presets/presets.h"
#include "ui/sections/undo_command_changes.h"

/// Other presets, with the filters of all commands of both lists that follow them.
class UndoPresetsChange final : public UndoStep
{
public:
    /// The presets to come back to, and the commands' filters, are those of this moment. Both services outlive the
    /// step.
    UndoPresetsChange(CommandLists& lists, Presets& presets, Presets::List changed, const QString& text);

private:
    struct Follower {
        std::shared_ptr<VellumarkCommand> command;
        command_fields::FilterFields old, changed;
    };

    void put_old() override;
    void put_new() override;
    void add_followers(const CommandList& list);
    void put(const Presets::List& presets, command_fields::FilterFields Follower::*fields);

    Presets& presets_;
    Presets::List old_;
    Presets::List new_;
    std::vector<Follower> followers_;
};
