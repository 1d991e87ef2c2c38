#pragma once

#include "platform/host/host_location.h"

#include <optional>
#include <string>

namespace platform {

/// Opens a regular file or a folder to read it, never to wait for it. None with `error` set in words for what can't
/// be opened and for anything else.
Descriptor open_file(const HostLocation& location, std::string& error);

/// All that is left. Empty, with `error` set in words, when a read fails.
std::optional<std::string> read_opened(const Descriptor& descriptor, std::string& error);

}
