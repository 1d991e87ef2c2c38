#pragma once

#include "engine/commands/vellumark_command.h"
#include "ui/lists/command_lists.h"
#include "ui/undo/command_step.h"
#include "ui/undo/merge_ids.h"

#include <functional>
#include <type_traits>

/// Another value of one field of a file-name command, or of several that change together: `get` and `set` are the
/// command's operations for it, or functions that take the command. A step joins the one before it when both have an
/// id and write the same command.
template <auto get, auto set, MergeId merge_id = MergeId::None>
class UndoFieldChange final : public CommandStep
{
public:
    using Value = std::remove_cvref_t<std::invoke_result_t<decltype(get), const VellumarkCommand&>>;

    UndoFieldChange(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command, Value value,
                    const QString& text)
        : CommandStep(lists, command, text), old_(std::invoke(get, std::as_const(*command))), new_(std::move(value))
    {}

    int id() const override { return static_cast<int>(merge_id); }

private:
    void write_old(MVCommandBase& command) override
    {
        std::invoke(set, dynamic_cast<VellumarkCommand&>(command), old_);
    }

    void write_new(MVCommandBase& command) override
    {
        std::invoke(set, dynamic_cast<VellumarkCommand&>(command), new_);
    }

    bool join(const CommandStep& later) override
    {
        new_ = static_cast<const UndoFieldChange&>(later).new_;
        return true;
    }

    Value old_;
    Value new_;
};
