#pragma once

#include "store/stored_commands.h"

/// File-name commands whose file filter follows a preset. Main thread only, for commands that are shown.
namespace preset_followers {

/// Brings the commands up to date: a filter that follows a preset takes its extensions, and a link to a preset that
/// is gone is dropped, with the filter's own text kept. Returns those that it changed.
CommandList update(const CommandList& list, const std::vector<ExtensionsPreset>& presets);

/// The list as `update` would make it, with clones in the place of the commands that follow a preset.
CommandList updated(CommandList list, const std::vector<ExtensionsPreset>& presets);

}
