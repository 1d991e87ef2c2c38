#pragma once

#include "store/commands_saving.h"
#include "store/json_file_reader.h"
#include "store/stored_commands.h"

#include <optional>
#include <string>
#include <string_view>

/// Reads the user's commands, always through the installed MVConfig. On any thread, for files may take
/// their time. A file that can't be used throws JsonFileReaderException or std::exception, and nothing of it is used.
namespace commands_file {

/// Commands with the file that they come from.
struct Loaded {
    StoredCommands commands;
    /// The user's file as it lay there; empty when there was none.
    std::optional<std::string> text;
    /// Of the next save. `Kept` where the file holds something that isn't among the commands.
    OldFile old = OldFile::Replaced;
};

/// The user's file alone; without one nothing.
Loaded read_user_file();

/// What lies in the user's file, whatever it is.
std::string read_user_text();

/// The user's commands; those of the default file when the user's file is missing or has an empty menu. A broken
/// user's file throws: the defaults don't stand in for it.
Loaded load_user_file();

/// Its commands.
StoredCommands load();

/// The default file alone.
StoredCommands load_defaults();

/// One file, as `commands_json::from_json` reads it.
StoredCommands read(std::u16string_view path, JsonSource source = JsonSource::StoredFile);

}
