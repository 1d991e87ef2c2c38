#pragma once

#include "ui/undo/undo_step.h"

#include <memory>

class CommandLists;
class MVCommandBase;

/// A step that changes fields of one command, whichever is current when it is undone or redone: it first brings that
/// command before the user, so that he sees what changes.
class CommandStep : public UndoStep
{
public:
    /// Steps of one id become one step when they change the same command and the derived class joins them.
    bool mergeWith(const QUndoCommand* other) final;

protected:
    CommandStep(CommandLists& lists, std::shared_ptr<MVCommandBase> command, const QString& text);

    const std::shared_ptr<MVCommandBase>& command() const { return command_; }

private:
    void put_old() final;
    void put_new() final;

    virtual void write_old(MVCommandBase& command) = 0;
    virtual void write_new(MVCommandBase& command) = 0;

    /// Takes over what a later step of the same class and for the same command writes; false when both stay.
    virtual bool join(const CommandStep& /*later*/) { return false; }

    CommandLists& lists_;
    std::shared_ptr<MVCommandBase> command_;
};
