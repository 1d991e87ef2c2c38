#pragma once

#include "platform/files.h"

#include <optional>

/// What a look at a path told.
struct PathAnswer {
    bool has_come = false;                              ///< false for a path that kept silent
    std::optional<platform::FileAttributes> attributes; ///< empty when they can't be read, or none are needed
};
