#include "ui/undo/undo_steps.h"

#include <algorithm>
#include <utility>

UndoSteps::UndoSteps(QObject* parent) : QObject(parent)
{
    connect(&stack_, &QUndoStack::indexChanged, this, &UndoSteps::end);
}

UndoSteps::~UndoSteps()
{
    // The stack lets go of its steps, which nobody is to hear of any more.
    stack_.disconnect(this);
}

void UndoSteps::run(const std::function<void()>& change)
{
    is_running_ = true;
    try {
        change();
    } catch (...) {
        end();
        throw;
    }
}

void UndoSteps::written(const std::shared_ptr<MVCommandBase>& command)
{
    if (std::ranges::find(written_, command) == written_.end())
        written_.push_back(command);
}

void UndoSteps::end()
{
    emit ended(std::exchange(written_, {}));
    is_running_ = false;
}
