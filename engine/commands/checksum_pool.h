#pragma once

#include "engine/checksums/checksum_type.h"
#include "engine/items/mv_item_base.h"

#include <set>
#include <span>

class ItemProgressSink;

/// Computes the checksums of all files in `items`, and with `uses_folder_data` of those below its folders as far as
/// they have been read, on a short pool of threads, and stores them on the files. Each pair of file and type is
/// computed once; what has been stored before is not computed again. When the sink cancels, what was done until then
/// is stored; before the first is begun, Cancelled is thrown.
void precache_checksums(std::span<const MVItemBase* const> items, const std::set<ChecksumType>& types,
                        bool uses_folder_data, ItemProgressSink& sink);
