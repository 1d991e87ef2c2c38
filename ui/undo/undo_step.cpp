#include "ui/undo/undo_step.h"

#include "ui/undo/undo_steps.h"

void UndoStep::undo()
{
    steps_.run([this] { put_old(); });
}

void UndoStep::redo()
{
    steps_.run([this] { put_new(); });
}
