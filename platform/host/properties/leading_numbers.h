#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// Numbers at the front of a tag's text.
namespace platform {

/// Of "3/12" the 3. Empty without a digit at the front and for a number of more than nine digits.
std::optional<std::uint64_t> leading_number(std::u16string_view text);

/// The first four digits: of "2024", "2024-03-05", "20240305" and "UTC 2024-03-05 06:07:08" the 2024. Empty for fewer
/// digits at the front, and for the year 0.
std::optional<std::uint64_t> leading_year(std::u16string_view text);

}
