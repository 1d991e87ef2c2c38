#pragma once

#include "engine/commands/vellumark_command.h"
#include "ui/undo/command_step.h"

/// A template's parts at one moment, with the settings that they had then.
class PartsSnapshot
{
public:
    explicit PartsSnapshot(const ItemPartsList& parts) : parts_(parts.begin(), parts.end()), settings_(parts) {}

    /// A list of the same parts, which have their settings of that moment again: an editor knows them by their
    /// identity.
    std::shared_ptr<ItemPartsList> restored() const;

private:
    std::vector<std::shared_ptr<ItemPartBase>> parts_;
    ItemPartsList settings_;
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
