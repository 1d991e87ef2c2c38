#pragma once

#include "app/command_editors.h"

namespace platform {
class Clipboard;
}

/// The editors of this program: the file-name commands', which copies to `clipboard`, and the built-in commands'.
MakeEditors editors_with(platform::Clipboard& clipboard);
