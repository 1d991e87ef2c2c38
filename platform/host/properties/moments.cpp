#include "platform/host/properties/moments.h"

#include "platform/local_time.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <ctime>

namespace platform {

namespace {

constexpr bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

/// Takes exactly `count` digits off the front.
std::optional<int> take_digits(std::string_view& text, std::size_t count)
{
    int value = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (i == text.size() || !is_digit(text[i]))
            return {};
        value = value * 10 + (text[i] - '0');
    }
    text.remove_prefix(count);
    return value;
}

/// Ticks of ".25"; what is finer than a tick is dropped.
std::int64_t take_fraction(std::string_view& text)
{
    if (text.size() < 2 || (text[0] != '.' && text[0] != ',') || !is_digit(text[1]))
        return 0;
    std::int64_t ticks = 0, weight = ticks_per_second / 10;
    for (text.remove_prefix(1); !text.empty() && is_digit(text[0]); text.remove_prefix(1), weight /= 10)
        ticks += (text[0] - '0') * weight;
    return ticks;
}

/// Year, month, day, hour, minute, second.
using Fields = std::array<int, 6>;

std::optional<Fields> take_fields(std::string_view& text)
{
    Fields fields{0, 1, 1, 0, 0, 0};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        std::string_view rest = text;
        constexpr std::string_view separators = "-:/T ";
        if (i > 0 && !rest.empty() && separators.find(rest[0]) != separators.npos)
            rest.remove_prefix(1);
        const auto value = take_digits(rest, i == 0 ? 4 : 2);
        if (!value && i == 0)
            return {};
        if (!value)
            break;
        fields[i] = *value;
        text = rest;
    }
    return fields;
}

/// Seconds east of Greenwich.
std::optional<std::int64_t> zone_offset(std::string_view text)
{
    if (text.empty() || (text[0] != '+' && text[0] != '-'))
        return {};
    const int sign = text[0] == '-' ? -1 : 1;
    text.remove_prefix(1);
    const auto hours = take_digits(text, 2);
    if (!hours)
        return {};
    if (!text.empty() && (text[0] == ':' || text[0] == '\''))
        text.remove_prefix(1);
    return sign * (*hours * 60 + take_digits(text, 2).value_or(0)) * 60;
}

/// Seconds since 1970 UTC of a local time.
std::int64_t from_local(const Fields& fields)
{
    std::tm time{};
    time.tm_year = fields[0] - 1900;
    time.tm_mon = fields[1] - 1;
    time.tm_mday = fields[2];
    time.tm_hour = fields[3];
    time.tm_min = fields[4];
    time.tm_sec = fields[5];
    time.tm_isdst = -1;
    return std::mktime(&time);
}

/// Seconds since 1970 UTC. Empty for a date that the calendar doesn't have.
std::optional<std::int64_t> seconds_of(const Fields& fields, bool is_local)
{
    using namespace std::chrono;
    const year_month_day date(year{fields[0]}, month(static_cast<unsigned>(fields[1])),
                              day(static_cast<unsigned>(fields[2])));
    if (!date.ok() || fields[0] < 1601 || fields[3] > 23 || fields[4] > 59 || fields[5] > 60)
        return {};
    if (is_local)
        return from_local(fields);
    const auto time_of_day = hours(fields[3]) + minutes(fields[4]) + std::chrono::seconds(fields[5]);
    return (sys_days(date).time_since_epoch() + time_of_day) / std::chrono::seconds(1);
}

}

std::optional<std::int64_t> parse_moment(std::string_view text, AssumedZone zone)
{
    bool is_utc = text.find("UTC") != text.npos || text.ends_with('Z');
    for (const std::string_view prefix : {"D:", "UTC "})
        if (text.starts_with(prefix))
            text.remove_prefix(prefix.size());
    const auto fields = take_fields(text);
    if (!fields)
        return {};
    const std::int64_t fraction = take_fraction(text);
    const auto offset = zone_offset(text);
    is_utc = is_utc || text.starts_with('Z') || zone == AssumedZone::Utc;
    const auto seconds = seconds_of(*fields, !is_utc && !offset);
    if (!seconds)
        return {};
    const std::int64_t ticks = (*seconds - offset.value_or(0) + seconds_1601_to_1970) * ticks_per_second + fraction;
    return ticks < 0 ? std::nullopt : std::optional(ticks);
}

std::optional<std::int64_t> parse_duration(std::string_view text)
{
    if (!text.starts_with('P') || text.size() < 3)
        return {};
    text.remove_prefix(1);
    double seconds = 0;
    for (bool is_time = false; !text.empty();) {
        if (text[0] == 'T') {
            is_time = true;
            text.remove_prefix(1);
            continue;
        }
        double number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end == text.data() + text.size())
            return {};
        const char unit = *end;
        const double weight = unit == 'D'   ? 86'400
                              : !is_time    ? 0
                              : unit == 'H' ? 3600
                              : unit == 'M' ? 60
                                            : unit == 'S';
        if (weight == 0)
            return {};
        seconds += number * weight;
        text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    }
    constexpr double longest = 1e10;
    // What is no number doesn't compare.
    const bool is_honest = seconds >= 0 && seconds < longest;
    return is_honest ? std::optional<std::int64_t>(std::llround(seconds * static_cast<double>(ticks_per_second)))
                     : std::nullopt;
}

}
