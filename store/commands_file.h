#pragma once

#include "engine/commands/mv_command_base.h"
#include "engine/filters/extensions_preset.h"
#include "store/json_file_reader.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

using CommandList = std::vector<std::shared_ptr<MVCommandBase>>;

/// All that a commands file holds.
struct StoredCommands {
    CommandList menu;    ///< as the context menu shows them
    CommandList library; ///< further ones
    std::vector<ExtensionsPreset> presets;
};

/// Reads and writes the user's commands, always through the installed MVConfig. Main thread only. A file that can't
/// be used throws JsonFileReaderException or std::exception, and nothing of it is used.
namespace commands_file {

/// The user's commands; those of the default file when the user's file is missing or has an empty menu. A broken
/// user's file throws: the defaults don't stand in for it.
StoredCommands load();

/// The default file alone.
StoredCommands load_defaults();

/// One file. Commands of unknown type are left out, presets that the file doesn't know come from the default
/// presets, and in a file from before there was a library the hidden file-name commands move there.
StoredCommands read(std::u16string_view path, JsonSource source = JsonSource::StoredFile);

/// What `read` makes of a file's value, and what `save` writes.
StoredCommands from_json(const boost::json::object& file);
boost::json::object to_json(const CommandList& menu, const CommandList& library,
                            const std::vector<ExtensionsPreset>& presets);

/// The commands under a file's `menu_key`. Throws std::runtime_error "JSON value missing: menuCommands" or "JSON
/// value not an array: menuCommands", and what a command's reader throws.
CommandList menu_from_json(const boost::json::object& file);
/// What stands there: every command is shown in the menu.
boost::json::array menu_to_json(const CommandList& menu);
inline constexpr std::string_view menu_key = "menuCommands";

/// What becomes of the file that a save replaces.
enum class OldFile : std::uint32_t {
    Replaced,
    Kept ///< beside the new one as "VKCmds.json.broken", with a number from 2 on behind it where that exists
};

/// Writes the user's file in one step by way of a temporary file beside it, "VKCmds.json+", which is never read: the
/// old file stays whole until the new one is. Where the file is a link, that stays and what it leads to is replaced.
/// Of two programs that save at once the second waits, up to a second; whichever is last is then the file. File-name
/// commands are brought up to date against `presets`: a filter that follows a preset takes its extensions, and a link
/// to a preset that is gone is dropped. Throws std::runtime_error "Failed to write commands to temporary file.",
/// "Failed to replace commands file." or "Failed to keep the old commands file.", or
/// boost::filesystem::filesystem_error for the folder; the old file and the commands are then as they were, and
/// nothing lies beside it.
void save(const CommandList& menu, const CommandList& library, const std::vector<ExtensionsPreset>& presets,
          OldFile old = OldFile::Replaced);

}
