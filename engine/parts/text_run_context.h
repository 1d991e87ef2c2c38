#pragma once

#include "engine/parts/text_output.h"

#include <cstdint>

class ItemProgressSink;
class VellumarkCommand;

/// What one text generation carries, or one folder's contents within it.
struct TextRunContext {
    /// Where filters, separator and parts lists come from; can be null.
    const VellumarkCommand* command = nullptr;
    ItemProgressSink* sink = nullptr;
    TextOutput output = {};
    /// The next index of running numbers.
    std::uint64_t counter = 0;
};
