#pragma once

#include "store/stored_commands.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Commands as users pass them to each other, in a file or on the clipboard: a commands file with the menu's key
/// alone. A whole commands file is read as well. Main thread only.
namespace exchange_text {

/// UTF-8, without whitespace.
std::string from_commands(const CommandList& commands);

/// The commands of a UTF-8 text in which other words may stand around the JSON; commands of unknown type are left
/// out, so that the list may be empty. Nothing for a text that holds no commands in that form.
std::optional<CommandList> to_commands(std::string_view text);

/// Where imported commands go.
enum class Place : std::uint32_t { Start, End, Replace };

/// Puts `imported` into `list` in its order. A command of the list that equals one of them goes first, so that an
/// import moves it; with `Replace` all go.
void merge(CommandList& list, const CommandList& imported, Place place);

}
