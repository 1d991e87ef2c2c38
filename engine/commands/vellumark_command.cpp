#include "engine/commands/vellumark_command.h"

#include "engine/items/mv_items_set.h"

#include <algorithm>
#include <tuple>

VellumarkCommand::VellumarkCommand(std::u16string name) : MVCommandBase(std::move(name)) {}

VellumarkCommand::VellumarkCommand(const boost::json::object& json) : MVCommandBase(json), fields_(read_fields(json))
{}

VellumarkCommand::VellumarkCommand(const VellumarkCommand& other)
    : MVCommandBase(other), fields_(other.fields_.deep_copy())
{}

VellumarkCommand& VellumarkCommand::operator=(const VellumarkCommand& other)
{
    MVCommandBase::operator=(other);
    fields_ = other.fields_.deep_copy();
    return *this;
}

VellumarkCommand::Fields VellumarkCommand::Fields::deep_copy() const
{
    Fields copy = *this;
    copy.file_parts = std::make_shared<ItemPartsList>(*file_parts);
    copy.folder_parts = std::make_shared<ItemPartsList>(*folder_parts);
    return copy;
}

bool VellumarkCommand::Fields::operator==(const Fields& other) const
{
    const auto plain = [](const Fields& f) {
        return std::tie(f.separator, f.start_text, f.end_text, f.sort_order, f.same_parts_for_folders,
                        f.no_start_end_text_if_one_item, f.add_files_from_folders, f.limit_folder_depth,
                        f.max_folder_depth, f.show_using_default_rules, f.show_rule, f.file_filter_enabled,
                        f.file_filter_preset_uuid, f.file_filter, f.folder_filter_enabled, f.folder_filter);
    };
    return *file_parts == *other.file_parts && *folder_parts == *other.folder_parts && plain(*this) == plain(other);
}

std::shared_ptr<MVCommandBase> VellumarkCommand::clone() const
{
    auto copy = std::make_shared<VellumarkCommand>(*this);
    copy->set_from_previous_session(false);
    return copy;
}

void VellumarkCommand::assign_from(const MVCommandBase& other)
{
    if (const auto* command = dynamic_cast<const VellumarkCommand*>(&other))
        fields_ = command->fields_.deep_copy();
}

bool VellumarkCommand::equals(const MVCommandBase& other) const
{
    const auto* command = dynamic_cast<const VellumarkCommand*>(&other);
    return MVCommandBase::equals(other) && command && fields_ == command->fields_;
}

bool VellumarkCommand::has_discardable_changes() const
{
    const auto* command = dynamic_cast<const VellumarkCommand*>(committed());
    return command && !(fields_ == command->fields_);
}

const std::shared_ptr<ItemPartsList>& VellumarkCommand::parts(Template which) const
{
    return which == Template::Files ? fields_.file_parts : fields_.folder_parts;
}

void VellumarkCommand::set_parts(Template which, std::shared_ptr<ItemPartsList> parts)
{
    (which == Template::Files ? fields_.file_parts : fields_.folder_parts) = std::move(parts);
}

void VellumarkCommand::set_limit_folder_depth(bool limit)
{
    fields_.limit_folder_depth = limit;
    if (limit)
        fields_.max_folder_depth = std::max(fields_.max_folder_depth, 1);
}

void VellumarkCommand::set_show(bool use_default, ShowRule rule)
{
    fields_.show_using_default_rules = use_default;
    fields_.show_rule = rule;
}

ShowRule VellumarkCommand::default_show_rule() const
{
    using Type = ItemPartBase::Type;
    if (!fields_.same_parts_for_folders || fields_.add_files_from_folders)
        return ShowRule::AtLeastOneFolder;
    const bool needs_file = std::ranges::any_of(*fields_.file_parts, [](const auto& part) {
        return part->type() == Type::Size || part->type() == Type::Property || part->type() == Type::Checksum;
    });
    return needs_file ? ShowRule::AtLeastOneFile : ShowRule::AtLeastOneItem;
}

bool VellumarkCommand::show_rule_holds(const MVItemsSet& selection) const
{
    return holds(fields_.show_using_default_rules ? default_show_rule() : fields_.show_rule, selection);
}

bool VellumarkCommand::is_shown_for(const MVItemsSet& selection) const
{
    if (!show_rule_holds(selection))
        return false;
    if (!file_filter_active() && !folder_filter_active())
        return true;
    return std::ranges::any_of(selection.items(), [&](const auto& item) { return passes_filter(*item); });
}

bool VellumarkCommand::file_filter_active() const
{
    return fields_.file_filter_enabled && !fields_.file_filter.filter_pattern().empty();
}

bool VellumarkCommand::folder_filter_active() const
{
    return fields_.folder_filter_enabled && !fields_.folder_filter.filter_pattern().empty();
}

bool VellumarkCommand::passes_filter(const MVItemBase& item) const
{
    if (item.is_folder())
        return !folder_filter_active() || fields_.folder_filter.passes(item.name());
    return !file_filter_active() || fields_.file_filter.passes(item.name());
}
