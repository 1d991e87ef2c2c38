#pragma once

#include "engine/parts/item_part_base.h"

#include <vector>

/// The parts that chips show, or are to show, in their order. None is null.
using PartsInOrder = std::vector<const ItemPartBase*>;

/// For each new part the index of the old chip that goes on to show it, each chip at most once, -1 for none, so that
/// as few chips as possible jump: first the chip of the same part, then along the longest run of equal parts in
/// order, then any chip of the part's type. Grows with the product of the parts that are not the same objects.
std::vector<int> matched_chips(const PartsInOrder& old_parts, const PartsInOrder& new_parts);
