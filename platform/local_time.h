#pragma once

#include <cstdint>
#include <optional>

namespace platform {

/// A moment split into its fields, in whichever zone it was made for.
struct BrokenDownTime {
    std::uint16_t year = 1601;     ///< 1601 to 30827
    std::uint16_t month = 1;       ///< 1 to 12
    std::uint16_t day_of_week = 1; ///< Sunday 0 to Saturday 6
    std::uint16_t day = 1;         ///< 1 to 31
    std::uint16_t hour = 0, minute = 0, second = 0, millisecond = 0;

    bool operator==(const BrokenDownTime&) const = default;
};

/// Splits a count of 100 ns since 1601 UTC. Empty for a negative count or a year above 30827.
std::optional<BrokenDownTime> to_utc_time(std::int64_t ticks);

inline constexpr std::int64_t ticks_per_second = 10'000'000;
/// From the first moment of this count to that of the host's.
inline constexpr std::int64_t seconds_1601_to_1970 = 11'644'473'600;

/// The same moment in the machine's time zone ($TZ, else /etc/localtime), by the daylight rule of that date. A change
/// of the zone counts after a second.
/// Empty for a count that `to_utc_time` refuses and for a local year outside 1601 to 30827.
std::optional<BrokenDownTime> to_local_time(std::int64_t ticks);

}
