#include "engine/parts/path_part.h"

#include "engine/items/long_path.h"
#include "engine/items/mv_item_folder.h"
#include "engine/parts/item_name_text.h"
#include "engine/text/json_access.h"
#include "engine/text/utf.h"
#include "platform/files.h"

#include <limits>

namespace {

/// Commands from before there were path types only said whether the item's own name belongs to the path.
ItemPartPath::PathType read_path_type(const boost::json::object& json)
{
    using enum ItemPartPath::PathType;
    if (!json.contains("path-type")) {
        const boost::json::value* includes_name = json.if_contains("include-item-name");
        return includes_name && *includes_name == false ? PathToParentFolder : FullPath;
    }
    const std::string type(json_access::required_string(json, "path-type"));
    return known_value(path_types, type, "Unknown ItemPartPath::PathType '" + type + "'");
}

}

ItemPartPath::ItemPartPath(const boost::json::object& json)
    : path_type_(read_path_type(json)),
      limit_num_parents_(json_access::optional_bool(json, "limit-num-parents", false))
{
    if (limit_num_parents_)
        num_parents_ = json_access::required_int32(json, "num-parents");
    separator_text_ = json_access::required_text(json, "separator-text");
    case_type_ = MVCaseTypeUtils::from_string(json_access::optional_string(json, "case-type"));
}

void ItemPartPath::set_separator_text(std::u16string text)
{
    separator_text_ = text.empty() ? u"\\" : std::move(text);
}

boost::json::object ItemPartPath::to_json() const
{
    const std::string error =
        "Unknown ItemPartPath::PathType " + std::to_string(static_cast<std::uint32_t>(path_type_));
    boost::json::object json{{"path-type", known_json(path_types, path_type_, error)},
                             {"limit-num-parents", limit_num_parents_}};
    if (limit_num_parents_)
        json["num-parents"] = num_parents_;
    json["separator-text"] = to_utf8(separator_text_);
    if (case_type_ != CaseType::Unchanged)
        json["case-type"] = MVCaseTypeUtils::to_string(case_type_);
    return json;
}

/// `own_names` of the path's names are no parents and come on top of the limit.
PathStyle ItemPartPath::style(std::int32_t own_names) const
{
    std::int32_t max_parents = limit_num_parents_ ? num_parents_ : 0;
    if (max_parents > 0 && max_parents <= std::numeric_limits<std::int32_t>::max() - own_names)
        max_parents += own_names;
    return {separator_text_, max_parents, path_type_ == PathType::PathNoDrive, case_type_};
}

std::u16string ItemPartPath::text_of(const MVItemBase& item) const
{
    std::u16string text;
    switch (path_type_) {
    case PathType::FullPath:
    case PathType::PathNoDrive: item.append_path(text, style(1)); break;
    case PathType::PathToParentFolder:
        if (item.parent())
            item.parent()->append_path(text, style(0));
        break;
    case PathType::DriveOnly: text = MVCaseTypeUtils::convert(case_type_, item.root_name()); break;
    case PathType::DriveLetterOnly: text = MVCaseTypeUtils::convert(case_type_, item.drive_letter()); break;
    case PathType::LinkTarget: text = link_target_text(item); break;
    }
    return text;
}

std::u16string ItemPartPath::link_target_text(const MVItemBase& item) const
{
    const std::u16string target = platform::link_target(add_long_path_prefix(item.full_path()));
    if (separator_text_ == u"\\")
        return MVCaseTypeUtils::convert(case_type_, target);
    std::u16string text;
    std::u16string_view rest = target;
    if (rest.starts_with(u"\\\\") && separator_text_ != u"/" && separator_text_ != u"\\\\") {
        text = u"\\\\";
        rest.remove_prefix(2);
    }
    for (const char16_t unit : rest) {
        if (unit == u'\\')
            text += separator_text_;
        else
            text += unit;
    }
    MVCaseTypeUtils::convert_in_place(case_type_, text);
    return text;
}

void ItemPartPath::append_text(TextRunContext& context, const MVItemBase& item, int) const
{
    append_name_text(context, text_of(item));
}
