#pragma once

#include "engine/filters/extensions_preset.h"

#include <vector>

/// The presets that ship with the program, for whom the commands file has none yet; none where they are missing or
/// aren't a list. Throws JsonFileReaderException for a file that can't be read, and std::exception for a preset that
/// lacks a key.
std::vector<ExtensionsPreset> load_default_presets();
