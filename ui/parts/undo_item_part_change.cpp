#include "ui/parts/undo_item_part_change.h"

namespace {

void write(MVCommandBase& command, const PartPlace& place, const ItemPartBase& settings)
{
    const ItemPartsList& parts = *dynamic_cast<VellumarkCommand&>(command).parts(place.which);
    if (const auto part = parts.at(place.position))
        part->assign_from(settings);
}

}

UndoItemPartChange::UndoItemPartChange(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command,
                                       PartPlace place, const Change& change)
    : CommandStep(lists, command, change.text), place_(place), old_(change.from), new_(change.to),
      merge_id_(change.merge_id)
{}

void UndoItemPartChange::write_old(MVCommandBase& command)
{
    write(command, place_, *old_);
}

void UndoItemPartChange::write_new(MVCommandBase& command)
{
    write(command, place_, *new_);
}

bool UndoItemPartChange::join(const CommandStep& later)
{
    const auto& other = static_cast<const UndoItemPartChange&>(later);
    if (other.place_ != place_)
        return false;
    new_ = other.new_;
    return true;
}
