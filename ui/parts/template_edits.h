#pragma once

#include "ui/parts/undo_item_part_change.h"

/// One template of a command as the user edits it: every change is a step of undo, which writes it. Main thread only.
class TemplateEdits
{
public:
    /// `lists` outlives this.
    TemplateEdits(CommandLists& lists, VellumarkCommand::Template which) : lists_(lists), which_(which) {}

    VellumarkCommand::Template which() const { return which_; }

    /// Null before the first one.
    const std::shared_ptr<VellumarkCommand>& command() const { return command_; }

    void set_command(std::shared_ptr<VellumarkCommand> command) { command_ = std::move(command); }

    /// The command's present list; an empty one without a command.
    std::shared_ptr<ItemPartsList> parts() const;

    /// Puts other parts or another order into the template. Nothing without a command.
    void change_list(const ItemPartsList& parts, const QString& text);

    /// Gives the part at a position the settings of `to`, a part of its class. Nothing where no part stands, or when
    /// it has these settings already.
    void change_part(std::size_t position, std::shared_ptr<const ItemPartBase> to, const QString& text,
                     MergeId merge_id);

private:
    CommandLists& lists_;
    VellumarkCommand::Template which_;
    std::shared_ptr<VellumarkCommand> command_;
};
