#pragma once

#include "ui/undo/undo_step.h"

#include <memory>

class CommandLists;
class MVCommandBase;

/// A step that changes fields of one command, whichever is current when it is undone or redone: it first brings that
/// command before the user, so that he sees what changes.
class CommandStep : public UndoStep
{
protected:
    CommandStep(CommandLists& lists, std::shared_ptr<MVCommandBase> command, const QString& text);

    const std::shared_ptr<MVCommandBase>& command() const { return command_; }

private:
    void put_old() final;
    void put_new() final;

    virtual void write_old(MVCommandBase& command) = 0;
    virtual void write_new(MVCommandBase& command) = 0;

    CommandLists& lists_;
    std::shared_ptr<MVCommandBase> command_;
};
