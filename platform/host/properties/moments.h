#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

enum class AssumedZone { Local, Utc };

/// Moment in 100 ns since 1601 UTC of a date as metadata spells it: year, month, day, hour, minute, second with any
/// separators or none, what is missing at the end counts as the first moment; then perhaps a fraction of a second and
/// a zone ("Z", "UTC", "+01:00", "-05'30'"). Takes "2024:03:05 14:02:11", "D:20240305140211+01'00'",
/// "2024-03-05T14:02:11.25Z", "UTC 2024-03-05 14:02:11". Without a zone `zone` is assumed. Empty for what is no date.
std::optional<std::int64_t> parse_moment(std::string_view text, AssumedZone zone);

/// 100 ns in an ISO 8601 duration of days, hours, minutes and seconds ("PT1H2M3.5S"). Empty for any other text.
std::optional<std::int64_t> parse_duration(std::string_view text);

}
