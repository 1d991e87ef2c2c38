#include "platform/host/properties/text_bytes.h"
#include "platform/local_time.h"
#include "platform/properties.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace platform {

namespace {

template <typename... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};

template <typename... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

using Strings = std::vector<std::u16string>;

/// Without blanks at its ends.
std::string trimmed_ascii(std::u16string_view text)
{
    std::string result = to_ascii(text);
    constexpr const char* blanks = " \t\r\n";
    result.erase(0, result.find_first_not_of(blanks));
    result.erase(result.find_last_not_of(blanks) + 1);
    return result;
}

template <typename Number>
std::optional<Number> parse(std::u16string_view text)
{
    const std::string digits = trimmed_ascii(text);
    const char* const start = digits.c_str() + (digits.starts_with('+') && !digits.starts_with("+-"));
    const char* const end = digits.c_str() + digits.size();
    Number value{};
    const auto [stop, error] = std::from_chars(start, end, value);
    if (start == end || stop != end || error != std::errc())
        return {};
    return value;
}

std::optional<double> finite(std::optional<double> value)
{
    return value && std::isfinite(*value) ? value : std::nullopt;
}

/// Rounds half to even.
std::optional<std::int64_t> round(std::optional<double> value)
{
    constexpr double limit = 9'223'372'036'854'775'808.0;
    const bool is_in_range = value && *value >= -limit && *value < limit;
    return is_in_range ? std::optional<std::int64_t>(std::llrint(*value)) : std::nullopt;
}

template <typename Result, typename Convert>
std::optional<Result> of_only_one(const Strings& texts, Convert convert)
{
    return texts.size() == 1 ? convert(PropertyValue(texts.front())) : std::optional<Result>();
}

std::optional<bool> word_to_bool(std::u16string_view text)
{
    const std::string word = lower_ascii(trimmed_ascii(text));
    if (word == "true" || word == "#true#")
        return true;
    if (word == "false" || word == "#false#")
        return false;
    return {};
}

std::u16string widen(std::string_view text)
{
    return {text.begin(), text.end()};
}

std::u16string number_text(double value)
{
    std::array<char, 400> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value + 0.0, std::chars_format::fixed);
    return widen({buffer.data(), end});
}

/// In UTC, as the documented conversion writes it: "2024/03/05:14:02:11.250".
std::optional<std::u16string> moment_text(FileTimeValue value)
{
    const auto time = to_utc_time(value.ticks);
    if (!time)
        return {};
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%04u/%02u/%02u:%02u:%02u:%02u.%03u", unsigned{time->year},
                  unsigned{time->month}, unsigned{time->day}, unsigned{time->hour}, unsigned{time->minute},
                  unsigned{time->second}, unsigned{time->millisecond});
    return widen(buffer.data());
}

std::u16string join(const Strings& texts)
{
    std::u16string result;
    for (const auto& text : texts) {
        if (&text != &texts.front())
            result += u"; ";
        result += text;
    }
    return result;
}

std::int64_t seconds_of(const BrokenDownTime& time)
{
    using namespace std::chrono;
    const sys_days date = year(time.year) / month(time.month) / day(time.day);
    const auto time_of_day = hours(time.hour) + minutes(time.minute) + seconds(time.second);
    return (date.time_since_epoch() + time_of_day) / seconds(1);
}

}

std::optional<double> to_double(const PropertyValue& value)
{
    return finite(
        std::visit(Overloaded{[](bool flag) { return std::optional(flag ? 1.0 : 0.0); },
                              [](std::int64_t number) { return std::optional(static_cast<double>(number)); },
                              [](std::uint64_t number) { return std::optional(static_cast<double>(number)); },
                              [](double number) { return std::optional(number); },
                              [](FileTimeValue) { return std::optional<double>(); },
                              [](const std::u16string& text) { return parse<double>(text); },
                              [](const Strings& texts) { return of_only_one<double>(texts, to_double); }},
                   value));
}

std::optional<std::int64_t> to_int64(const PropertyValue& value)
{
    using Result = std::optional<std::int64_t>;
    return std::visit(
        Overloaded{[](bool flag) { return Result(flag ? 1 : 0); }, [](std::int64_t number) { return Result(number); },
                   [](std::uint64_t number) {
                       return number <= INT64_MAX ? Result(static_cast<std::int64_t>(number)) : Result();
                   },
                   [](double number) { return round(number); }, [](FileTimeValue) { return Result(); },
                   [](const std::u16string& text) {
                       const auto exact = parse<std::int64_t>(text);
                       return exact ? exact : round(parse<double>(text));
                   },
                   [](const Strings& texts) { return of_only_one<std::int64_t>(texts, to_int64); }},
        value);
}

std::optional<bool> to_bool(const PropertyValue& value)
{
    if (const auto* const text = std::get_if<std::u16string>(&value))
        if (const auto word = word_to_bool(*text))
            return word;
    if (const auto* const texts = std::get_if<Strings>(&value))
        return of_only_one<bool>(*texts, to_bool);
    const auto number = to_double(value);
    return number ? std::optional(*number != 0) : std::nullopt;
}

std::optional<std::u16string> to_text(const PropertyValue& value)
{
    using Result = std::optional<std::u16string>;
    return std::visit(
        Overloaded{[](bool flag) { return Result(flag ? u"1" : u"0"); },
                   [](std::int64_t number) { return Result(widen(std::to_string(number))); },
                   [](std::uint64_t number) { return Result(widen(std::to_string(number))); },
                   [](double number) { return std::isfinite(number) ? Result(number_text(number)) : Result(); },
                   [](FileTimeValue moment) { return moment_text(moment); },
                   [](const std::u16string& text) { return Result(text); },
                   [](const Strings& texts) { return Result(join(texts)); }},
        value);
}

std::optional<std::int64_t> to_local_file_time(const PropertyValue& value)
{
    const auto* const moment = std::get_if<FileTimeValue>(&value);
    const auto utc = moment ? to_utc_time(moment->ticks) : std::nullopt;
    const auto local = utc ? to_local_time(moment->ticks) : std::nullopt;
    if (!utc || !local)
        return {};
    return moment->ticks + (seconds_of(*local) - seconds_of(*utc)) * ticks_per_second;
}

}
