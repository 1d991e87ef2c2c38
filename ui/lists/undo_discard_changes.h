#pragma once

#include "ui/editor/command_controller_base.h"

#include <QPointer>
#include <QUndoCommand>

#include <memory>

class CommandsListController;
class MVCommandBase;

/// Takes a command back to its saved contents.
class UndoDiscardChanges final : public QUndoCommand
{
public:
    /// The contents to come back to are the command's at this moment. `editor` is null where no editor shows it.
    UndoDiscardChanges(CommandsListController& controller, CommandControllerBase* editor,
                       std::shared_ptr<MVCommandBase> command, const QString& text);

    void undo() override;
    void redo() override;

private:
    void show();

    CommandsListController& controller_;
    QPointer<CommandControllerBase> editor_;
    std::shared_ptr<MVCommandBase> command_;
    std::shared_ptr<const MVCommandBase> old_;
};
