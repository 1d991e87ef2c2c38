#pragma once

#include "ui/sections/undo_field_change.h"

/// Which of the texts around a command's items.
enum class AdditionalText : std::uint32_t { Start, End };

namespace command_fields {

/// When the menu shows a command.
struct MenuRule {
    bool is_default = true; ///< `rule` follows from the templates
    ShowRule rule = ShowRule::AtLeastOneItem;
};

inline MenuRule menu_rule(const VellumarkCommand& command)
{
    return {command.show_using_default_rules(), command.show_rule()};
}

inline void set_menu_rule(VellumarkCommand& command, const MenuRule& rule)
{
    command.set_show(rule.is_default, rule.rule);
}

/// How deep files are looked for in folders.
struct DepthLimit {
    bool is_on = false;
    std::int32_t depth = 1; ///< kept while it isn't on
};

inline DepthLimit depth_limit(const VellumarkCommand& command)
{
    return {command.limit_folder_depth(), command.max_folder_depth()};
}

/// Both at once: turning the limit on may raise the depth, which undo has to take back.
inline void set_depth_limit(VellumarkCommand& command, const DepthLimit& limit)
{
    command.set_max_folder_depth(limit.depth);
    command.set_limit_folder_depth(limit.is_on);
}

/// All that a step changes of one filter.
struct FilterFields {
    bool is_enabled = false;
    ItemFilter filter;
    std::u16string preset_uuid = {}; ///< that the file filter follows; empty for none, and for folders

    bool operator==(const FilterFields&) const = default;
};

inline FilterFields file_filter(const VellumarkCommand& command)
{
    return {command.file_filter_enabled(), command.file_filter(), command.file_filter_preset_uuid()};
}

inline void set_file_filter(VellumarkCommand& command, const FilterFields& fields)
{
    command.set_file_filter_enabled(fields.is_enabled);
    command.set_file_filter(fields.filter);
    command.set_file_filter_preset_uuid(fields.preset_uuid);
}

inline FilterFields folder_filter(const VellumarkCommand& command)
{
    return {command.folder_filter_enabled(), command.folder_filter()};
}

inline void set_folder_filter(VellumarkCommand& command, const FilterFields& fields)
{
    command.set_folder_filter_enabled(fields.is_enabled);
    command.set_folder_filter(fields.filter);
}

template <AdditionalText which>
const std::u16string& additional_text(const VellumarkCommand& command)
{
    return which == AdditionalText::Start ? command.start_text() : command.end_text();
}

template <AdditionalText which>
void set_additional_text(VellumarkCommand& command, std::u16string text)
{
    if constexpr (which == AdditionalText::Start)
        command.set_start_text(std::move(text));
    else
        command.set_end_text(std::move(text));
}

}

using UndoFoldersAsFilesChange =
    UndoFieldChange<&VellumarkCommand::same_parts_for_folders, &VellumarkCommand::set_same_parts_for_folders>;
using UndoAddFilesFromFoldersChange =
    UndoFieldChange<&VellumarkCommand::add_files_from_folders, &VellumarkCommand::set_add_files_from_folders>;
using UndoLimitFolderDepthChange = UndoFieldChange<&command_fields::depth_limit, &command_fields::set_depth_limit>;
using UndoMaxFolderDepthChange =
    UndoFieldChange<&VellumarkCommand::max_folder_depth, &VellumarkCommand::set_max_folder_depth>;
using UndoItemSeparatorChange =
    UndoFieldChange<&VellumarkCommand::separator, &VellumarkCommand::set_separator, MergeId::Separator>;
template <AdditionalText which>
using UndoAdditionalTextChange =
    UndoFieldChange<&command_fields::additional_text<which>, &command_fields::set_additional_text<which>,
                    which == AdditionalText::Start ? MergeId::StartText : MergeId::EndText>;
using UndoNoStartEndTextIfOneItemChange = UndoFieldChange<&VellumarkCommand::no_start_end_text_if_one_item,
                                                          &VellumarkCommand::set_no_start_end_text_if_one_item>;
using UndoSortOrderChange = UndoFieldChange<&VellumarkCommand::sort_order, &VellumarkCommand::set_sort_order>;
using UndoContextMenuOptions = UndoFieldChange<&command_fields::menu_rule, &command_fields::set_menu_rule>;
using UndoFileFilterChange = UndoFieldChange<&command_fields::file_filter, &command_fields::set_file_filter>;
using UndoFolderFilterChange = UndoFieldChange<&command_fields::folder_filter, &command_fields::set_folder_filter>;
