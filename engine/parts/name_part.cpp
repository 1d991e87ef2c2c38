#include "engine/parts/name_part.h"

#include "engine/items/mv_item_base.h"
#include "engine/parts/item_name_text.h"
#include "engine/text/json_access.h"

namespace {

ItemPartName::NameType read_name_type(const boost::json::object& json)
{
    const std::string type(json_access::required_string(json, "name-type"));
    return known_value(name_types, type, "Unknown ItemPartName::NameType '" + type + "'");
}

}

ItemPartName::ItemPartName(const boost::json::object& json) : name_type_(read_name_type(json))
{
    if (name_type_ == NameType::SelectorPart)
        selector_part_index_ = json_access::required_int32(json, "selector-part-index");
    case_type_ = MVCaseTypeUtils::from_string(json_access::optional_string(json, "case-type"));
}

boost::json::object ItemPartName::to_json() const
{
    const std::string error =
        "Unknown ItemPartName::NameType " + std::to_string(static_cast<std::uint32_t>(name_type_));
    boost::json::object json{{"name-type", known_json(name_types, name_type_, error)}};
    if (name_type_ == NameType::SelectorPart)
        json["selector-part-index"] = selector_part_index_;
    if (case_type_ != CaseType::Unchanged)
        json["case-type"] = MVCaseTypeUtils::to_string(case_type_);
    return json;
}

std::u16string ItemPartName::text_of(const MVItemBase& item) const
{
    const std::u16string& name = item.name();
    const std::size_t dot = name.rfind(u'.');
    switch (name_type_) {
    case NameType::FullName: return name;
    case NameType::NameNoExt: return name.substr(0, dot);
    case NameType::ExtOnly: return dot == name.npos ? std::u16string() : name.substr(dot + 1);
    case NameType::SelectorPart: return item.selector_part(selector_part_index_);
    }
    return {};
}

void ItemPartName::append_text(TextRunContext& context, const MVItemBase& item, int) const
{
    std::u16string text = text_of(item);
    MVCaseTypeUtils::convert_in_place(case_type_, text);
    append_name_text(context, std::move(text));
}
