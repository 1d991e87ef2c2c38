#include "ui/parts/undo_items_list_change.h"

#include <unordered_map>

PartsSnapshot::PartsSnapshot(const ItemPartsList& parts, const PartsSnapshot& same_moment)
{
    std::unordered_map<const ItemPartBase*, std::shared_ptr<const ItemPartBase>> known;
    for (const auto& [part, settings] : same_moment.entries_)
        known.emplace(part.get(), settings);
    for (const auto& part : parts) {
        const auto kept = known.find(part.get());
        entries_.push_back({part, kept == known.end() ? part->clone() : kept->second});
    }
}

std::shared_ptr<ItemPartsList> PartsSnapshot::restored() const
{
    auto list = std::make_shared<ItemPartsList>();
    for (const auto& [part, settings] : entries_) {
        part->assign_from(*settings);
        list->append(part);
    }
    return list;
}

UndoItemsListChange::UndoItemsListChange(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command,
                                         VellumarkCommand::Template which, const ItemPartsList& parts,
                                         const QString& text)
    : CommandStep(lists, command, text), which_(which), old_(*command->parts(which)), new_(parts, old_)
{}

void UndoItemsListChange::write_old(MVCommandBase& command)
{
    dynamic_cast<VellumarkCommand&>(command).set_parts(which_, old_.restored());
}

void UndoItemsListChange::write_new(MVCommandBase& command)
{
    dynamic_cast<VellumarkCommand&>(command).set_parts(which_, new_.restored());
}
