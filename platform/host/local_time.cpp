#include "platform/local_time.h"

#include <array>
#include <chrono>
#include <ctime>

namespace platform {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year;

constexpr std::int64_t seconds_per_day = 86'400, bucket_seconds = 900;
constexpr sys_days first_day = year{1601} / 1 / 1, last_day = year{30827} / 12 / 31;

/// Seconds by which local time is ahead of UTC at a moment in seconds since 1970. Empty when the year is too large.
std::optional<std::int64_t> ask_offset(std::int64_t moment)
{
    const std::time_t time = moment;
    std::tm local{};
    if (!localtime_r(&time, &local))
        return {};
    const sys_days month_start = year{local.tm_year + 1900} / (local.tm_mon + 1) / 1;
    const std::int64_t day = month_start.time_since_epoch().count() + local.tm_mday - 1;
    const std::int64_t minute = std::int64_t{local.tm_hour} * 60 + local.tm_min;
    return day * seconds_per_day + minute * 60 + local.tm_sec - moment;
}

/// One quarter of an hour of UTC in which the offset is the same throughout.
struct Bucket {
    std::int64_t number = -1;
    std::int64_t offset = 0;
};

using Buckets = std::array<Bucket, 256>;

/// Empty again each second, with the C library looking whether the machine has moved to another zone.
Buckets& current_buckets()
{
    thread_local Buckets buckets;
    thread_local std::time_t looked_at = 0;
    if (const std::time_t now = std::time(nullptr); now != looked_at) {
        tzset();
        buckets.fill({});
        looked_at = now;
    }
    return buckets;
}

/// Asking the C library takes a lock and a search: a folder's files lie close together in time, so most moments find
/// their quarter of an hour here. A quarter in which the offset changes is never kept.
std::optional<std::int64_t> local_offset(std::int64_t seconds_since_1601)
{
    Buckets& buckets = current_buckets();
    const std::int64_t number = seconds_since_1601 / bucket_seconds;
    Bucket& bucket = buckets[static_cast<std::size_t>(number) % buckets.size()];
    if (bucket.number == number)
        return bucket.offset;
    const std::int64_t first = number * bucket_seconds - seconds_1601_to_1970;
    const auto offset = ask_offset(first);
    if (offset != ask_offset(first + bucket_seconds - 1))
        return ask_offset(seconds_since_1601 - seconds_1601_to_1970);
    if (offset)
        bucket = {number, *offset};
    return offset;
}

}

std::optional<BrokenDownTime> to_utc_time(std::int64_t ticks)
{
    const std::int64_t seconds = ticks / ticks_per_second;
    const sys_days day = first_day + days(seconds / seconds_per_day);
    if (ticks < 0 || day > last_day)
        return {};
    const std::chrono::year_month_day date(day);
    const std::int64_t second = seconds % seconds_per_day;
    const auto narrow = [](auto value) { return static_cast<std::uint16_t>(value); };
    return BrokenDownTime{narrow(static_cast<int>(date.year())),
                          narrow(static_cast<unsigned>(date.month())),
                          narrow(std::chrono::weekday(day).c_encoding()),
                          narrow(static_cast<unsigned>(date.day())),
                          narrow(second / 3600),
                          narrow(second / 60 % 60),
                          narrow(second % 60),
                          narrow(ticks / 10'000 % 1000)};
}

std::optional<BrokenDownTime> to_local_time(std::int64_t ticks)
{
    if (!to_utc_time(ticks))
        return {};
    const auto offset = local_offset(ticks / ticks_per_second);
    return offset ? to_utc_time(ticks + *offset * ticks_per_second) : std::nullopt;
}

}
