#pragma once

#include "platform/files.h"

namespace platform {

/// Attributes of `name` in the open folder (AT_FDCWD allowed). Empty with errno set when they can't be had.
/// Never mounts what waits to be mounted on first use.
std::optional<FileAttributes> entry_attributes(int folder, const char* name);

/// True when `name` leads to a folder, links followed.
bool leads_to_folder(int folder, const char* name);

}
