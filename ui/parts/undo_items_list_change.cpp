#include "ui/parts/undo_items_list_change.h"

std::shared_ptr<ItemPartsList> PartsSnapshot::restored() const
{
    auto list = std::make_shared<ItemPartsList>();
    auto settings = settings_.begin();
    for (const auto& part : parts_) {
        part->assign_from(**settings++);
        list->append(part);
    }
    return list;
}

UndoItemsListChange::UndoItemsListChange(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command,
                                         VellumarkCommand::Template which, const ItemPartsList& parts,
                                         const QString& text)
    : CommandStep(lists, command, text), which_(which), old_(*command->parts(which)), new_(parts)
{}

void UndoItemsListChange::write_old(MVCommandBase& command)
{
    dynamic_cast<VellumarkCommand&>(command).set_parts(which_, old_.restored());
}

void UndoItemsListChange::write_new(MVCommandBase& command)
{
    dynamic_cast<VellumarkCommand&>(command).set_parts(which_, new_.restored());
}
