#pragma once

#include "engine/parts/date_part.h"
#include "engine/parts/item_part_base.h"
#include "engine/parts/size_part.h"
#include "engine/text/case_type.h"
#include "platform/properties.h"

#include <string>
#include <string_view>
#include <tuple>

/// Writes one property of an item: as the system displays it, or its raw value in a format of the part's own.
class ItemPartProperty final : public ItemPart<ItemPartProperty, ItemPartBase::Type::Property>
{
public:
    enum class ValueType : std::uint32_t { Default, Numeric, DateTime, String, Boolean, Size, Duration };
    enum class BooleanFormat : std::uint32_t { YesNo, TrueFalse, OneZero };

    ItemPartProperty() = default;
    /// Throws std::runtime_error when "property-name" is missing; an unknown string of any enumeration reads as the
    /// first.
    explicit ItemPartProperty(const boost::json::object& json);

    const std::u16string& property_name() const { return property_name_; }

    void set_property_name(std::u16string name) { property_name_ = std::move(name); }

    /// Off: the system's display text, whatever the settings below.
    bool custom_format() const { return custom_format_; }

    void set_custom_format(bool custom) { custom_format_ = custom; }

    ValueType value_type() const { return value_type_; }

    void set_value_type(ValueType type) { value_type_ = type; }

    /// For numbers, sizes and durations.
    bool add_thousands_separator() const { return add_thousands_separator_; }

    void set_add_thousands_separator(bool add) { add_thousands_separator_ = add; }

    ItemPartDate::DateFormat date_format() const { return date_format_; }

    void set_date_format(ItemPartDate::DateFormat format) { date_format_ = format; }

    bool add_leading_zeros() const { return add_leading_zeros_; }

    void set_add_leading_zeros(bool add) { add_leading_zeros_ = add; }

    BooleanFormat boolean_format() const { return boolean_format_; }

    void set_boolean_format(BooleanFormat format) { boolean_format_ = format; }

    CaseType case_type() const { return case_type_; }

    void set_case_type(CaseType type) { case_type_ = type; }

    ItemPartSize::SizeFormat size_format() const { return size_format_; }

    void set_size_format(ItemPartSize::SizeFormat format) { size_format_ = format; }

    bool round_to_seconds() const { return round_to_seconds_; }

    void set_round_to_seconds(bool round) { round_to_seconds_ = round; }

    /// The type that suits a property: by its name for sizes and the duration, else by its declared type, a list as
    /// its elements.
    static ValueType default_value_type(std::u16string_view name, platform::PropertyType type);

    /// A raw value in the part's format; empty when it can't be converted.
    std::u16string formatted(const platform::PropertyValue& value) const;

    boost::json::object to_json() const override;
    void append_text(TextRunContext& context, const MVItemBase& item, int level) const override;

    auto settings() const
    {
        return std::tie(property_name_, custom_format_, value_type_, add_thousands_separator_, date_format_,
                        add_leading_zeros_, boolean_format_, case_type_, size_format_, round_to_seconds_);
    }

private:
    void write_format(boost::json::object& json) const;
    std::u16string numeric_text(double value) const;
    std::u16string duration_text(std::int64_t value) const;

    std::u16string property_name_;
    bool custom_format_ = false;
    ValueType value_type_ = ValueType::Default;
    bool add_thousands_separator_ = false;
    ItemPartDate::DateFormat date_format_ = ItemPartDate::DateFormat::ShortDate;
    bool add_leading_zeros_ = false;
    BooleanFormat boolean_format_ = BooleanFormat::YesNo;
    CaseType case_type_ = CaseType::Unchanged;
    ItemPartSize::SizeFormat size_format_ = ItemPartSize::SizeFormat::Bytes;
    bool round_to_seconds_ = false;
};

inline constexpr std::array<EnumRow<ItemPartProperty::ValueType>, 7> property_value_types{{
    {ItemPartProperty::ValueType::Default, "default"},
    {ItemPartProperty::ValueType::Numeric, "numeric"},
    {ItemPartProperty::ValueType::DateTime, "datetime"},
    {ItemPartProperty::ValueType::String, "string"},
    {ItemPartProperty::ValueType::Boolean, "boolean"},
    {ItemPartProperty::ValueType::Size, "size"},
    {ItemPartProperty::ValueType::Duration, "duration"},
}};
static_assert(is_complete(property_value_types));

struct BooleanFormatRow {
    ItemPartProperty::BooleanFormat value;
    std::string_view json;
    std::u16string_view if_true, if_false;
};

inline constexpr std::array<BooleanFormatRow, 3> boolean_formats{{
    {ItemPartProperty::BooleanFormat::YesNo, "yes-no", u"Yes", u"No"},
    {ItemPartProperty::BooleanFormat::TrueFalse, "true-false", u"True", u"False"},
    {ItemPartProperty::BooleanFormat::OneZero, "one-zero", u"1", u"0"},
}};
static_assert(is_complete(boolean_formats));
