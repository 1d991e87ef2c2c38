#pragma once

#include "engine/commands/vellumark_command.h"

#include <memory>

/// Both on any thread, for a file may take its time.

/// The command of the last run; null when none was kept or the file holds no object. Throws
/// JsonFileReaderException or the command reader's error for a file that can't be used.
std::shared_ptr<VellumarkCommand> read_last_command();

/// Keeps a command as it is, unsaved edits included, in one step as a commands file is saved. A file that can't be
/// written is not reported: the command just isn't selected at the next start. Throws
/// boost::filesystem::filesystem_error when its folder can't be created.
void write_last_command(const VellumarkCommand& command);
