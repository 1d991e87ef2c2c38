#pragma once

#include "engine/commands/command_type.h"

#include <cstdint>
#include <string_view>
#include <vector>

class MVItemsSet;

/// For which selections a built-in command shows.
enum class BuiltinShowRule : std::uint32_t { None, OneItem, AFolder, OneFile, SeveralItems };

/// What the interface tells of a command type. All texts are English source texts of the translation context
/// "BuiltinCommandInfo".
struct BuiltinCommandInfo {
    CommandType type;
    std::string_view name;
    std::string_view one_item_name; ///< empty where there is none
    std::string_view description;
    BuiltinShowRule show_rule;
    bool listed; ///< whether the gallery offers it

    /// Empty for rule `None`.
    std::string_view show_rule_text() const;
};

/// The row of a type; that of `Invalid` for an unknown one.
const BuiltinCommandInfo& builtin_command_info(CommandType type);

/// The rows that the gallery offers, in table order.
std::vector<BuiltinCommandInfo> listed_builtin_commands();

/// Whether the selection is one that the type's rule asks for. The clipboard, on which pasting depends too, is not
/// looked at.
bool builtin_show_test(CommandType type, const MVItemsSet& selection);

/// A name for a command whose own name is empty, as a list row shows it.
std::string_view default_command_name(CommandType type);

/// What a command is, for a tool tip.
std::string_view full_command_name(CommandType type);
