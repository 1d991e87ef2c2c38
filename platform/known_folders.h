#pragma once

#include <optional>
#include <string>
#include <vector>

/// Folders in drive form, without a trailing backslash (the host's root is `C:`). A variable that holds no absolute
/// path is ignored, as the XDG base directory rules ask.
namespace platform {

/// The user's own settings: $XDG_CONFIG_HOME, else ~/.config (home from $HOME, else the user database).
/// Empty when neither can be told.
std::optional<std::u16string> user_settings_folder();

/// Settings for all users, the most important first: the absolute paths of $XDG_CONFIG_DIRS, else /etc/xdg.
std::vector<std::u16string> machine_settings_folders();

/// Where the running program's file lies. Throws std::runtime_error when the system doesn't tell.
std::u16string program_folder();

}
