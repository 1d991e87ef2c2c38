#pragma once

#include "store/stored_commands.h"
#include "ui/presets/presets.h"

#include <array>
#include <string>
#include <vector>

/// All commands and presets, by value.
struct WalkSnapshot {
    std::array<CommandList, 2> lists;
    Presets::List presets;
    std::string step;                      ///< that led here
    const MVCommandBase* edited = nullptr; ///< by that step

    /// The steps don't count.
    bool equals(const WalkSnapshot& other) const;
    WalkSnapshot deep_copy() const;
};

/// What the window should hold, before the first step of undo and after each.
struct WalkModel {
    std::vector<WalkSnapshot> history;
    int place = 0; ///< in the history
    WalkSnapshot saved;

    WalkSnapshot& now() { return history[static_cast<std::size_t>(place)]; }

    /// Returns what the step, which drops those that were undone, is to be done to. What is typed in one box is one
    /// step.
    WalkSnapshot& follow(const std::string& step, const MVCommandBase* edited = nullptr, bool joins = false);
};
