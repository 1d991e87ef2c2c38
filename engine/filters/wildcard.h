#pragma once

#include <string_view>

/// Whether the whole name matches: "*" stands for any run of units, also an empty one, "?" for exactly one; any
/// other unit for itself in either case of ASCII letters. At most |pattern| x |name| steps.
bool matches_wildcard(std::u16string_view pattern, std::u16string_view name);
