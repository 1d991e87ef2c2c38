#include "engine/commands/vellumark_command.h"

#include "engine/text/json_access.h"
#include "engine/text/utf.h"

namespace json = boost::json;

namespace {

/// Commands from before there were rules only had two flags.
ShowRule read_show_rule(const json::object& object)
{
    if (object.contains("showRule"))
        return value_or(show_rules, json_access::required_string(object, "showRule"), ShowRule::AtLeastOneItem);
    const bool files = json_access::optional_bool(object, "showIfFilesSelected", false);
    const bool folders = json_access::optional_bool(object, "showIfFoldersSelected", false);
    if (files == folders)
        return ShowRule::AtLeastOneItem;
    return files ? ShowRule::AtLeastOneFile : ShowRule::AtLeastOneFolder;
}

void write_show_rule(json::object& object, ShowRule rule)
{
    object["showRule"] = known_json(show_rules, rule, "Unknown ShowRule value");
    object["showIfFilesSelected"] = rule != ShowRule::AtLeastOneFolder && rule != ShowRule::ExactlyOneFolder;
    object["showIfFoldersSelected"] = rule != ShowRule::AtLeastOneFile && rule != ShowRule::ExactlyOneFile;
}

/// Null when there is no filter to read.
const json::object* filter_object(const json::object& object, std::string_view key)
{
    const json::value* value = object.if_contains(key);
    return value ? value->if_object() : nullptr;
}

struct FilterKeys {
    std::string_view enabled, filter;
};

constexpr FilterKeys file_keys{"fileFilterEnabled", "fileFilter"}, folder_keys{"folderFilterEnabled", "folderFilter"};

void write_filter(json::object& object, const FilterKeys& keys, bool enabled, const ItemFilter& filter,
                  std::u16string_view preset_uuid)
{
    const bool has_pattern = !filter.filter_pattern().empty();
    if (!enabled && !has_pattern)
        return;
    object[keys.enabled] = enabled && filter.is_pattern_valid();
    if (!has_pattern)
        return;
    json::object written = filter.to_json();
    if (!preset_uuid.empty())
        written["fileFilterPresetUuid"] = to_utf8(preset_uuid);
    object[keys.filter] = std::move(written);
}

}

json::object VellumarkCommand::to_json() const
{
    json::object object = common_json();
    object["separator"] = to_utf8(fields_.separator);
    object["startText"] = to_utf8(fields_.start_text);
    object["endText"] = to_utf8(fields_.end_text);
    object["sortOrder"] = known_json(sort_orders, fields_.sort_order, "Unknown VellumarkCommand::Sort value");
    object["noStartEndTextIfOneItem"] = fields_.no_start_end_text_if_one_item;
    object["fileParts"] = fields_.file_parts->to_json();
    if (!fields_.same_parts_for_folders)
        object["folderParts"] = fields_.folder_parts->to_json();
    object["addFilesFromFolders"] = fields_.add_files_from_folders;
    if (fields_.add_files_from_folders) {
        object["limitFolderDepth"] = fields_.limit_folder_depth;
        if (fields_.limit_folder_depth)
            object["maxFolderDepth"] = fields_.max_folder_depth;
    }
    object["showUsingDefaultRules"] = fields_.show_using_default_rules;
    if (!fields_.show_using_default_rules)
        write_show_rule(object, fields_.show_rule);
    write_filter(object, file_keys, fields_.file_filter_enabled, fields_.file_filter,
                 fields_.file_filter_preset_uuid);
    write_filter(object, folder_keys, fields_.folder_filter_enabled, fields_.folder_filter, {});
    return object;
}

VellumarkCommand::Fields VellumarkCommand::read_fields(const json::object& object)
{
    Fields fields;
    fields.separator = json_access::required_text(object, "separator");
    fields.start_text = json_access::optional_text(object, "startText");
    fields.end_text = json_access::optional_text(object, "endText");
    fields.sort_order = value_or(sort_orders, json_access::optional_string(object, "sortOrder"), Sort::AsSelected);
    fields.no_start_end_text_if_one_item = json_access::optional_bool(object, "noStartEndTextIfOneItem", false);
    fields.file_parts = std::make_shared<ItemPartsList>(json_access::required(object, "fileParts"));
    if (const json::value* parts = object.if_contains("folderParts")) {
        fields.folder_parts = std::make_shared<ItemPartsList>(*parts);
        fields.same_parts_for_folders = false;
    }
    fields.add_files_from_folders = json_access::optional_bool(object, "addFilesFromFolders", false);
    fields.limit_folder_depth = json_access::optional_bool(object, "limitFolderDepth", false);
    fields.max_folder_depth = json_access::optional_int32(object, "maxFolderDepth", 0);
    fields.show_using_default_rules = json_access::optional_bool(object, "showUsingDefaultRules", true);
    if (!fields.show_using_default_rules)
        fields.show_rule = read_show_rule(object);
    fields.file_filter_enabled = json_access::optional_bool(object, file_keys.enabled, false);
    if (const json::object* filter = filter_object(object, file_keys.filter)) {
        fields.file_filter = ItemFilter(*filter);
        fields.file_filter_preset_uuid = json_access::optional_text(*filter, "fileFilterPresetUuid");
    }
    fields.folder_filter_enabled = json_access::optional_bool(object, folder_keys.enabled, false);
    if (const json::object* filter = filter_object(object, folder_keys.filter))
        fields.folder_filter = ItemFilter(*filter);
    return fields;
}
