#pragma once

#include "engine/commands/vellumark_command.h"
#include "ui/undo/command_step.h"

/// A template's parts at one moment, with the settings that they had then.
class PartsSnapshot
{
public:
    explicit PartsSnapshot(const ItemPartsList& parts) : PartsSnapshot(parts, {}) {}

    /// `same_moment` knows the settings of some of these parts already, which need not be kept twice.
    PartsSnapshot(const ItemPartsList& parts, const PartsSnapshot& same_moment);

    /// A list of the same parts, which have their settings of that moment again: an editor knows them by their
    /// identity.
    std::shared_ptr<ItemPartsList> restored() const;

private:
    struct Entry {
        std::shared_ptr<ItemPartBase> part;
        std::shared_ptr<const ItemPartBase> settings;
    };

    PartsSnapshot() = default;

    std::vector<Entry> entries_;
};

/// Other parts in a template, or in another order.
class UndoItemsListChange final : public CommandStep
{
public:
    UndoItemsListChange(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command,
                        VellumarkCommand::Template which, const ItemPartsList& parts, const QString& text);

private:
    void write_old(MVCommandBase& command) override;
    void write_new(MVCommandBase& command) override;

    VellumarkCommand::Template which_;
    PartsSnapshot old_;
    PartsSnapshot new_;
};
