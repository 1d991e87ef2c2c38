#pragma once

#include "store/stored_commands.h"

#include <string_view>

/// The JSON of a commands file.
namespace commands_json {

/// What a file's value holds. Commands of unknown type are left out, presets that the file doesn't know come from the
/// default presets, and in a file from before there was a library the hidden file-name commands move there. Throws
/// std::exception for a value that is no commands file, and what reading the default presets throws.
StoredCommands from_json(const boost::json::object& file);

/// The value of a file that holds these as they are.
boost::json::object to_json(const StoredCommands& commands);

/// The commands under a file's `menu_key`. Throws std::runtime_error "JSON value missing: menuCommands" or "JSON
/// value not an array: menuCommands", and what a command's reader throws.
CommandList menu_from_json(const boost::json::object& file);
/// What stands there: every command is shown in the menu.
boost::json::array menu_to_json(const CommandList& menu);
inline constexpr std::string_view menu_key = "menuCommands";

}
