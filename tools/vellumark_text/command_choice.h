#pragma once

#include "engine/commands/vellumark_command.h"
#include "store/stored_commands.h"
#include "vellumark_text/options.h"

#include <memory>
#include <string>

/// The command that the options ask for: by index, by name, or the menu's first file-name command. Throws UsageError
/// when there is none such or it is built in, std::runtime_error when the menu has no file-name command at all.
std::shared_ptr<const VellumarkCommand> choose_command(const StoredCommands& commands, const Options& options);

/// One line a command: list ("menu" or "library"), index, name, and "built-in" where it is; tabs between them.
std::string list_commands(const StoredCommands& commands);
