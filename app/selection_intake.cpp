#include "app/selection_intake.h"

#include <algorithm>
#include <utility>

SelectionIntake::SelectionIntake(QObject* parent) : QObject(parent) {}

void SelectionIntake::add_reader(SelectionReader& reader)
{
    readers_.push_back(&reader);
}

void SelectionIntake::remove_reader(SelectionReader& reader)
{
    std::erase(readers_, &reader);
    reading_ended();
}

void SelectionIntake::reading_ended()
{
    // Later: the caller stands in the middle of its own work, which the new selection would start again.
    if (waiting_)
        QMetaObject::invokeMethod(this, &SelectionIntake::proceed, Qt::QueuedConnection);
}

void SelectionIntake::expect()
{
    is_expected_ = true;
    stop_readers();
}

void SelectionIntake::take(int command_index, std::shared_ptr<NewSelection> selection)
{
    is_expected_ = false;
    waiting_ = Waiting{command_index, std::move(selection)};
    proceed();
}

void SelectionIntake::proceed()
{
    if (!waiting_)
        return;
    stop_readers();
    if (std::ranges::any_of(readers_, &SelectionReader::is_reading))
        return;
    const Waiting taken = std::move(*waiting_);
    waiting_.reset();
    emit selection_ready(taken.command_index, taken.selection);
}

void SelectionIntake::stop_readers()
{
    for (SelectionReader* reader : readers_)
        if (reader->is_reading())
            reader->stop_reading();
}
