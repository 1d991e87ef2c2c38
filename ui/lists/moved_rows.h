#pragma once

#include <optional>
#include <vector>

/// The order of `count` rows after those of `rows` were dropped before row `target`: in its place each row's old
/// number. The dropped ones stay in ascending order; numbers beyond the rows are left out. None when the order stays
/// as it is.
std::optional<std::vector<int>> moved_rows(int count, const std::vector<int>& rows, int target);
