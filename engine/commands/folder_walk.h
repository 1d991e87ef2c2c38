#pragma once

#include "engine/items/mv_item_base.h"

#include <cstdint>
#include <span>
#include <vector>

class ItemFilter;
class ItemProgressSink;
class MVItemsSet;

/// The selected items with each folder replaced by the files below it, in key order. Links to folders are not
/// followed below a selected folder. `max_depth` 1 takes the files directly in a selected folder, 0 has no limit. A
/// folder below a selected one that doesn't pass `folder_filter` (may be null) is left out with all it holds. What
/// has been gathered when the sink cancels is returned. The items belong to the selection.
std::vector<const MVItemBase*> expand_files(const MVItemsSet& selection, std::int32_t max_depth,
                                            ItemProgressSink& sink, const ItemFilter* folder_filter);

/// Reads all folders in and below `items` ahead, level by level, each on one thread of a short pool. A selected link
/// to a folder is read, a link found below is not. Soon after the sink cancels it returns, or throws
/// Cancelled; the folders that were read until then stay read.
void precache_folders(std::span<const MVItemBase* const> items, ItemProgressSink& sink);
