#include "engine/parts/property_part.h"

#include "engine/items/mv_item_base.h"
#include "engine/parts/text_run_context.h"
#include "engine/properties/item_property_reader.h"
#include "engine/text/json_access.h"
#include "engine/text/utf.h"

namespace {

using ValueType = ItemPartProperty::ValueType;

/// The enumerator of an optional key; the first row's when the key is missing or its string unknown.
template <typename Row, std::size_t N>
auto read_value(const std::array<Row, N>& rows, const boost::json::object& json, std::string_view key)
{
    return value_or(rows, json_access::optional_string(json, key), rows.front().value);
}

}

ItemPartProperty::ItemPartProperty(const boost::json::object& json)
    : property_name_(json_access::required_text(json, "property-name")),
      custom_format_(json_access::optional_bool(json, "custom-format", false)),
      value_type_(read_value(property_value_types, json, "value-type")),
      add_thousands_separator_(json_access::optional_bool(json, "add-thousands-separator", false)),
      date_format_(read_value(date_formats, json, "date-format")),
      add_leading_zeros_(json_access::optional_bool(json, "add-leading-zeros", false)),
      boolean_format_(read_value(boolean_formats, json, "boolean-format")),
      case_type_(MVCaseTypeUtils::from_string(json_access::optional_string(json, "case-type"))),
      size_format_(read_value(size_formats, json, "size-format")),
      round_to_seconds_(json_access::optional_bool(json, "round-to-seconds", false))
{}

boost::json::object ItemPartProperty::to_json() const
{
    boost::json::object json{{"property-name", to_utf8(property_name_)}};
    if (custom_format_) {
        json["custom-format"] = true;
        json["value-type"] = row_or_first(property_value_types, value_type_).json;
        write_format(json);
    }
    return json;
}

/// Only what the type needs.
void ItemPartProperty::write_format(boost::json::object& json) const
{
    switch (value_type_) {
    case ValueType::Default: break;
    case ValueType::Numeric: json["add-thousands-separator"] = add_thousands_separator_; break;
    case ValueType::DateTime:
        json["date-format"] = row_or_first(date_formats, date_format_).json;
        json["add-leading-zeros"] = add_leading_zeros_;
        break;
    case ValueType::String: json["case-type"] = MVCaseTypeUtils::to_string(case_type_); break;
    case ValueType::Boolean: json["boolean-format"] = row_or_first(boolean_formats, boolean_format_).json; break;
    case ValueType::Size:
        json["size-format"] = row_or_first(size_formats, size_format_).json;
        json["add-thousands-separator"] = add_thousands_separator_;
        break;
    case ValueType::Duration:
        json["add-thousands-separator"] = add_thousands_separator_;
        json["round-to-seconds"] = round_to_seconds_;
        break;
    }
}

ItemPartProperty::ValueType ItemPartProperty::default_value_type(std::u16string_view name,
                                                                 platform::PropertyType type)
{
    using enum platform::PropertyType;
    if (name == u"System.Size" || name == u"System.FileAllocationSize")
        return ValueType::Size;
    if (name == u"System.Media.Duration")
        return ValueType::Duration;
    switch (static_cast<platform::PropertyType>(static_cast<std::uint16_t>(type) & 0xFFF)) {
    case I2:
    case I4:
    case R4:
    case R8:
    case UI2:
    case UI4:
    case I8:
    case UI8:
    case Int:
    case UInt: return ValueType::Numeric;
    case Bstr:
    case Lpstr:
    case Lpwstr: return ValueType::String;
    case Bool: return ValueType::Boolean;
    case FileTime: return ValueType::DateTime;
    default: return ValueType::Default;
    }
}

void ItemPartProperty::append_text(TextRunContext& context, const MVItemBase& item, int) const
{
    if (!custom_format_ || value_type_ == ValueType::Default)
        context.output.append(item.property_value(property_name_));
    else if (const auto value = property_raw_value(item.full_path(), property_name_))
        context.output.append(formatted(*value));
}
