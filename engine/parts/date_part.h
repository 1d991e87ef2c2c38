#pragma once

#include "engine/parts/item_part_base.h"

#include <string>
#include <tuple>

namespace platform {
struct BrokenDownTime;
}

/// Writes one of an item's times, or a single field of it, in local time; an unknown time contributes nothing.
class ItemPartDate final : public ItemPart<ItemPartDate, ItemPartBase::Type::Date>
{
public:
    enum class DateType : std::uint32_t { Modified, Created, Accessed };
    enum class DateFormat : std::uint32_t {
        ShortDate,
        LongDate,
        ShortDateTime,
        LongDateTime,
        IsoDateTime,
        IsoDateTimeFilename,
        Year4,
        Year2,
        MonthFull,
        MonthAbr,
        MonthDigits,
        DateDigits,
        DayFull,
        DayAbr,
        Day0To6, ///< Sunday 0 to Saturday 6
        Day1To7, ///< Monday 1 to Sunday 7
        Hour24,
        Hour12,
        Min,
        Sec,
        AmPm
    };

    ItemPartDate() = default;
    /// Throws std::runtime_error when "dateType" or "dateFormat" is missing or unknown.
    explicit ItemPartDate(const boost::json::object& json);

    DateType date_type() const { return date_type_; }

    void set_date_type(DateType type) { date_type_ = type; }

    DateFormat date_format() const { return date_format_; }

    void set_date_format(DateFormat format) { date_format_ = format; }

    /// Counts only where `leading_zeros_apply`.
    bool add_leading_zeros() const { return add_leading_zeros_; }

    void set_add_leading_zeros(bool add) { add_leading_zeros_ = add; }

    static bool leading_zeros_apply(DateFormat format);

    bool leading_zeros_apply() const { return leading_zeros_apply(date_format_); }

    boost::json::object to_json() const override;
    void append_text(TextRunContext& context, const MVItemBase& item, int level) const override;

    auto settings() const { return std::tie(date_type_, date_format_, add_leading_zeros_); }

private:
    DateType date_type_ = DateType::Modified;
    DateFormat date_format_ = DateFormat::ShortDate;
    bool add_leading_zeros_ = false;
};

inline constexpr std::array<EnumRow<ItemPartDate::DateType>, 3> date_types{{
    {ItemPartDate::DateType::Modified, "modified"},
    {ItemPartDate::DateType::Created, "created"},
    {ItemPartDate::DateType::Accessed, "accessed"},
}};
static_assert(is_complete(date_types));

inline constexpr std::array<EnumRow<ItemPartDate::DateFormat>, 21> date_formats{{
    {ItemPartDate::DateFormat::ShortDate, "short-date"},
    {ItemPartDate::DateFormat::LongDate, "long-date"},
    {ItemPartDate::DateFormat::ShortDateTime, "short-date-time"},
    {ItemPartDate::DateFormat::LongDateTime, "long-date-time"},
    {ItemPartDate::DateFormat::IsoDateTime, "iso-date-time"},
    {ItemPartDate::DateFormat::IsoDateTimeFilename, "iso-date-time-filename"},
    {ItemPartDate::DateFormat::Year4, "year-4"},
    {ItemPartDate::DateFormat::Year2, "year-2"},
    {ItemPartDate::DateFormat::MonthFull, "month-full"},
    {ItemPartDate::DateFormat::MonthAbr, "month-abr"},
    {ItemPartDate::DateFormat::MonthDigits, "month-digits"},
    {ItemPartDate::DateFormat::DateDigits, "date-digits"},
    {ItemPartDate::DateFormat::DayFull, "day-full"},
    {ItemPartDate::DateFormat::DayAbr, "day-abr"},
    {ItemPartDate::DateFormat::Day0To6, "day-0-6"},
    {ItemPartDate::DateFormat::Day1To7, "day-1-7"},
    {ItemPartDate::DateFormat::Hour24, "hour-24"},
    {ItemPartDate::DateFormat::Hour12, "hour-12"},
    {ItemPartDate::DateFormat::Min, "min"},
    {ItemPartDate::DateFormat::Sec, "sec"},
    {ItemPartDate::DateFormat::AmPm, "am-pm"},
}};
static_assert(is_complete(date_formats));

/// A local time in a format. Empty for a format outside the table.
std::u16string format_date(const platform::BrokenDownTime& time, ItemPartDate::DateFormat format,
                           bool add_leading_zeros);
