#include "engine/parts/property_part.h"
#include "engine/text/number_grouping.h"
#include "platform/decimal_text.h"
#include "platform/local_time.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

using Int64Limits = std::numeric_limits<std::int64_t>;

/// With that many decimals, of which the zeros at the end go, and the point when all go.
std::u16string trimmed_decimal(double value, int decimals)
{
    // The largest double has 309 digits before the point.
    std::array<char, 340> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals).ptr;
    std::u16string text(digits.data(), end);
    if (text.find(u'.') == text.npos)
        return text;
    text.resize(text.find_last_not_of(u'0') + 1);
    if (text.ends_with(u'.'))
        text.pop_back();
    return text;
}

std::u16string signed_text(std::int64_t value, bool grouped)
{
    const auto magnitude = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    std::u16string text = platform::decimal_text(magnitude);
    if (value < 0)
        text.insert(0, 1, u'-');
    return grouped ? group_digits(text) : text;
}

/// A negative size is below every threshold, and division cuts towards zero.
std::u16string signed_size_text(std::int64_t value, ItemPartSize::SizeFormat format, bool grouped)
{
    if (value >= 0)
        return size_text(static_cast<std::uint64_t>(value), format, grouped);
    if (format == ItemPartSize::SizeFormat::Auto)
        return signed_text(value, grouped) + u"B";
    const std::int64_t divisor = std::int64_t{1} << row_or_first(size_formats, format).shift;
    return signed_text((value + (divisor - 1)) / divisor, grouped);
}

bool is_whole(double value)
{
    return value >= -0x1p63 && value < 0x1p63 && value == std::trunc(value);
}

}

std::u16string ItemPartProperty::numeric_text(double value) const
{
    if (is_whole(value))
        return signed_text(static_cast<std::int64_t>(value), add_thousands_separator_);
    return trimmed_decimal(value, 6);
}

/// Units of 100 ns in seconds.
std::u16string ItemPartProperty::duration_text(std::int64_t value) const
{
    constexpr std::int64_t second = 10'000'000;
    if (!round_to_seconds_)
        return trimmed_decimal(static_cast<double>(value) / 1e7, 7);
    const std::int64_t half = value > Int64Limits::max() - second / 2 ? 0 : second / 2;
    return signed_text((value + half) / second, add_thousands_separator_);
}

std::u16string ItemPartProperty::formatted(const platform::PropertyValue& value) const
{
    switch (value_type_) {
    case ValueType::Default: break;
    case ValueType::Numeric:
        if (const auto number = platform::to_double(value))
            return numeric_text(*number);
        break;
    case ValueType::DateTime:
        if (const auto ticks = platform::to_local_file_time(value))
            if (const auto time = platform::to_utc_time(*ticks))
                return format_date(*time, date_format_, add_leading_zeros_);
        break;
    case ValueType::String:
        if (auto text = platform::to_text(value)) {
            MVCaseTypeUtils::convert_in_place(case_type_, *text);
            return *std::move(text);
        }
        break;
    case ValueType::Boolean:
        if (const auto truth = platform::to_bool(value)) {
            const BooleanFormatRow& row = row_or_first(boolean_formats, boolean_format_);
            return std::u16string(*truth ? row.if_true : row.if_false);
        }
        break;
    case ValueType::Size:
        if (const auto size = platform::to_int64(value))
            return signed_size_text(*size, size_format_, add_thousands_separator_);
        break;
    case ValueType::Duration:
        if (const auto units = platform::to_int64(value))
            return duration_text(*units);
        break;
    }
    return {};
}
