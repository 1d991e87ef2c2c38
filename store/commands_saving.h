#pragma once

#include "store/stored_commands.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What becomes of the file that a save replaces.
enum class OldFile : std::uint32_t {
    Replaced,
    Kept ///< beside the new one as "VKCmds.json.broken", with a number from 2 on behind it where that exists
};

/// A save of the user's commands on its way to the disk.
struct CommandsSaving {
    std::string text;
    OldFile old = OldFile::Replaced;
    /// The texts that it may replace; empty for whatever is there. Where no file is, nothing speaks against one.
    std::optional<std::vector<std::string>> known = {};
    /// Asked last of all, on the thread that writes; empty for always.
    std::function<bool()> is_wanted = {};
};

/// Writing the user's commands file.
namespace commands_saving {

/// A file's text. File-name commands stand in it as they are when brought up to date against the presets. Main thread
/// only.
std::string text_of(const StoredCommands& commands);

/// Writes the user's file in one step by way of a temporary file beside it, "VKCmds.json+", which is never read: the
/// old file stays whole until the new one is. Where the file is a link, that stays and what it leads to is replaced.
/// Of two programs that save at once the second waits, up to a second, and then finds the first one's file. False
/// when another file lies there than is known, or the save isn't wanted any more. Throws std::runtime_error "Failed
/// to write commands to temporary file.", "Failed to replace commands file." or "Failed to keep the old commands
/// file.", or boost::filesystem::filesystem_error for the folder. Unless it is true the old file is as it was, and
/// nothing lies beside it. On any thread.
bool write(const CommandsSaving& saving);

}
