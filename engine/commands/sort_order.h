#pragma once

#include "engine/items/cancel_point.h"
#include "engine/items/mv_item_base.h"
#include "engine/text/enum_table.h"

#include <array>
#include <cstdint>
#include <vector>

/// How a command orders its items. Each "Rev" is its twin with the operands exchanged, tie-break included.
enum class Sort : std::uint32_t {
    AsSelected,
    Name,
    NameRev,
    Size,
    SizeRev,
    ModDate,
    ModDateRev,
    PathLength,
    PathLengthRev
};

inline constexpr std::array<EnumRow<Sort>, 9> sort_orders{{
    {Sort::AsSelected, "as-selected"},
    {Sort::Name, "name"},
    {Sort::NameRev, "name-rev"},
    {Sort::Size, "size"},
    {Sort::SizeRev, "size-rev"},
    {Sort::ModDate, "mod-date"},
    {Sort::ModDateRev, "mod-date-rev"},
    {Sort::PathLength, "path-length"},
    {Sort::PathLengthRev, "path-length-rev"},
}};
static_assert(is_complete(sort_orders));

/// Sorts by the order's key, then by name; names compare by UTF-16 unit, case-sensitive, and folders stand among
/// the files. `AsSelected` leaves the list as it is.
/// Throws Cancelled when `cancel_point` says so.
void sort_items(std::vector<const MVItemBase*>& items, Sort order, CancelPoint& cancel_point);
