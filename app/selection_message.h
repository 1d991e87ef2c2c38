#pragma once

#include <QStringList>

#include <cstddef>
#include <optional>
#include <span>

/// A selection as another program sends it.
struct SelectionMessage {
    int command_index = -1; ///< row of the menu list; negative: none
    QStringList paths;      ///< never empty
};

/// Tells the debug log of a message that is too large to be decoded.
void log_too_large_message(std::size_t size);

/// Decodes a message of the selection protocol. Empty when it is too large or gives no path; the debug log says why.
/// Any thread.
std::optional<SelectionMessage> decode_selection_message(std::span<const char> bytes);
