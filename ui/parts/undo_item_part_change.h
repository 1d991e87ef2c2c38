#pragma once

#include "engine/commands/vellumark_command.h"
#include "ui/undo/command_step.h"
#include "ui/undo/merge_ids.h"

/// Where a part stands: in which of a command's templates, and at which position from 0.
struct PartPlace {
    VellumarkCommand::Template which = VellumarkCommand::Template::Files;
    std::size_t position = 0;

    bool operator==(const PartPlace&) const = default;
};

/// Another setting of one part. A place that the template doesn't have any more changes nothing.
class UndoItemPartChange final : public CommandStep
{
public:
    /// The part's settings before and after. A step joins the one before it when both have one id and one place.
    struct Change {
        std::shared_ptr<const ItemPartBase> from;
        std::shared_ptr<const ItemPartBase> to;
        QString text;
        MergeId merge_id = MergeId::None;
    };

    UndoItemPartChange(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command, PartPlace place,
                       const Change& change);

    int id() const override { return static_cast<int>(merge_id_); }

private:
    void write_old(MVCommandBase& command) override;
    void write_new(MVCommandBase& command) override;
    bool join(const CommandStep& later) override;

    PartPlace place_;
    std::shared_ptr<const ItemPartBase> old_;
    std::shared_ptr<const ItemPartBase> new_;
    MergeId merge_id_;
};
