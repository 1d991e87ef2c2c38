#pragma once

#include "platform/host/descriptor.h"

namespace platform {

/// The folder for the running session's sockets and locks, which nobody but the user may change: $XDG_RUNTIME_DIR or,
/// where that can't be trusted, "vellumark-UID" among the temporary files. None, with errno, when there is no such.
Descriptor open_runtime_folder();

}
