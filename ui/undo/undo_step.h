#pragma once

#include <QUndoCommand>

class UndoSteps;

/// A step that can be taken back. It only makes its change: what follows from that is done once it has ended. None
/// makes itself obsolete, for the stack doesn't tell of the end of such a one. Main thread only.
class UndoStep : public QUndoCommand
{
public:
    void undo() final;
    void redo() final;

protected:
    /// `steps` outlives the step.
    UndoStep(UndoSteps& steps, const QString& text) : QUndoCommand(text), steps_(steps) {}

    UndoSteps& steps() const { return steps_; }

private:
    virtual void put_old() = 0;
    virtual void put_new() = 0;

    UndoSteps& steps_;
};
