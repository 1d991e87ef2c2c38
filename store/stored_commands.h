#pragma once

#include "engine/commands/mv_command_base.h"
#include "engine/filters/extensions_preset.h"

#include <memory>
#include <vector>

using CommandList = std::vector<std::shared_ptr<MVCommandBase>>;

/// All that a commands file holds.
struct StoredCommands {
    CommandList menu;    ///< as the context menu shows them
    CommandList library; ///< further ones
    std::vector<ExtensionsPreset> presets;
};
