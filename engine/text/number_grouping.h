#pragma once

#include <string>
#include <string_view>

/// Decimal digits, with or without a leading "-", in groups of three with `separator` between them. The sign is
/// never a group of its own.
std::u16string group_digits(std::u16string_view digits, std::u16string_view separator);

/// The same with the user's thousands separator.
std::u16string group_digits(std::u16string_view digits);
