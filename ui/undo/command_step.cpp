#include "ui/undo/command_step.h"

#include "ui/lists/command_lists.h"
#include "ui/undo/undo_steps.h"

#include <typeinfo>

CommandStep::CommandStep(CommandLists& lists, std::shared_ptr<MVCommandBase> command, const QString& text)
    : UndoStep(lists.steps(), text), lists_(lists), command_(std::move(command))
{}

bool CommandStep::mergeWith(const QUndoCommand* other)
{
    const auto* later = dynamic_cast<const CommandStep*>(other);
    return later && typeid(*later) == typeid(*this) && later->command_ == command_ && join(*later);
}

void CommandStep::put_old()
{
    lists_.show(*command_);
    write_old(*command_);
    steps().written(command_);
}

void CommandStep::put_new()
{
    lists_.show(*command_);
    write_new(*command_);
    steps().written(command_);
}
