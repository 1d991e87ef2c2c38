#include "platform/local_time.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <random>
#include <thread>
#include <vector>

using platform::BrokenDownTime;

namespace {

constexpr std::int64_t per_second = 10'000'000, of_1970 = 116'444'736'000'000'000;

/// Runs `check` in a zone, on a thread of its own because each thread remembers the zone's offsets.
template <typename Check>
void in_zone(const char* zone, const Check& check)
{
    setenv("TZ", zone, 1);
    tzset();
    std::thread(check).join();
    unsetenv("TZ");
    tzset();
}

std::string text(const std::optional<BrokenDownTime>& time)
{
    if (!time)
        return "none";
    char buffer[80];
    std::snprintf(buffer, sizeof buffer, "%d-%02d-%02d %02d:%02d:%02d.%03d day %d", time->year, time->month,
                  time->day, time->hour, time->minute, time->second, time->millisecond, time->day_of_week);
    return buffer;
}

TEST(LocalTime, UtcFields)
{
    const std::vector<std::pair<std::int64_t, std::string>> rows{
        {0, "1601-01-01 00:00:00.000 day 1"},
        {of_1970, "1970-01-01 00:00:00.000 day 4"},
        {of_1970 - 1, "1969-12-31 23:59:59.999 day 3"},
        {of_1970 + 9'999, "1970-01-01 00:00:00.000 day 4"},
        {of_1970 + 951'782'400 * per_second, "2000-02-29 00:00:00.000 day 2"},
        {-1, "none"},
        {std::numeric_limits<std::int64_t>::min(), "none"},
        {std::numeric_limits<std::int64_t>::max(), "none"},
        {9'223'149'887'999'999'999, "30827-12-31 23:59:59.999 day 5"},
        {9'223'149'888'000'000'000, "none"},
    };
    for (const auto& [ticks, expected] : rows)
        EXPECT_EQ(text(platform::to_utc_time(ticks)), expected) << ticks;
}

TEST(LocalTime, DaylightRuleOfTheDate)
{
    in_zone("CET-1CEST,M3.5.0,M10.5.0/3", [] {
        const auto local = [](std::int64_t unix_time) {
            return text(platform::to_local_time(of_1970 + unix_time * per_second));
        };
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(local(1'711'846'799), "2024-03-31 01:59:59.000 day 0");
            EXPECT_EQ(local(1'711'846'800), "2024-03-31 03:00:00.000 day 0");
            EXPECT_EQ(local(1'729'990'799), "2024-10-27 02:59:59.000 day 0");
            EXPECT_EQ(local(1'729'990'800), "2024-10-27 02:00:00.000 day 0");
        }
        EXPECT_EQ(text(platform::to_local_time(0)), "1601-01-01 01:00:00.000 day 1");
        EXPECT_EQ(text(platform::to_local_time(9'223'149'887'999'999'999)), "none");
    });
    in_zone("<+0845>-8:45",
            [] { EXPECT_EQ(text(platform::to_local_time(of_1970)), "1970-01-01 08:45:00.000 day 4"); });
    in_zone("EST5", [] { EXPECT_EQ(text(platform::to_local_time(0)), "none"); });
}

TEST(LocalTime, FollowsTheZone)
{
    in_zone("AAA-1", [] {
        const auto local = [] { return text(platform::to_local_time(of_1970)); };
        EXPECT_EQ(local(), "1970-01-01 01:00:00.000 day 4");
        setenv("TZ", "BBB-2", 1);
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (local() == "1970-01-01 01:00:00.000 day 4" && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        EXPECT_EQ(local(), "1970-01-01 02:00:00.000 day 4");
    });
}

/// Clocks that change at odd moments of the hour, as many did before there were zones.
TEST(LocalTime, AgreesWithTheSystemForEveryMoment)
{
    for (const char* zone : {"AAA-0:53:28BBB-1:10,M3.5.0/2:03:07,M10.5.0/3:58:01", "EST5EDT,M3.2.0,M11.1.0", "UTC"})
        in_zone(zone, [zone] {
            std::mt19937_64 random(7);
            for (int i = 0; i < 200'000; ++i) {
                const auto moment = static_cast<std::time_t>(random() % 4'000'000'000);
                const std::time_t near = i % 2 ? moment : 1'711'846'800 + moment % 20'000 - 10'000;
                const auto time = platform::to_local_time(of_1970 + near * per_second);
                std::tm expected{};
                localtime_r(&near, &expected);
                ASSERT_TRUE(time && time->day == expected.tm_mday && time->hour == expected.tm_hour &&
                            time->minute == expected.tm_min && time->second == expected.tm_sec &&
                            time->day_of_week == expected.tm_wday && time->month == expected.tm_mon + 1)
                    << zone << " " << near;
            }
        });
}

}
