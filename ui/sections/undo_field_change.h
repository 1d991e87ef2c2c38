#pragma once

#include "engine/commands/vellumark_command.h"
#include "ui/lists/command_lists.h"
#include "ui/undo/command_step.h"

#include <type_traits>

/// Another value of one field of a file-name command, which `get` and `set` are its operations for.
template <auto get, auto set>
class UndoFieldChange final : public CommandStep
{
public:
    using Value = std::remove_cvref_t<std::invoke_result_t<decltype(get), const VellumarkCommand&>>;

    UndoFieldChange(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command, Value value,
                    const QString& text)
        : CommandStep(lists, command, text), old_(((*command).*get)()), new_(std::move(value))
    {}

private:
    void write_old(MVCommandBase& command) override { (dynamic_cast<VellumarkCommand&>(command).*set)(old_); }

    void write_new(MVCommandBase& command) override { (dynamic_cast<VellumarkCommand&>(command).*set)(new_); }

    Value old_;
    Value new_;
};

using UndoFoldersAsFilesChange =
    UndoFieldChange<&VellumarkCommand::same_parts_for_folders, &VellumarkCommand::set_same_parts_for_folders>;
