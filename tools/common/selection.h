#pragma once

#include "common/tool.h"
#include "engine/items/mv_items_set.h"

#include <functional>
#include <string>

/// Enters the paths that the options name in `selection`; `entered`, if given, gets the system's form of each. False
/// when one could not be added; each such has been reported. Throws what `for_each_path` and `to_system_path` throw.
bool select_paths(MVItemsSet& selection, const CommonOptions& options, const Tool& tool,
                  const std::function<void(const std::u16string& path)>& entered = {});
