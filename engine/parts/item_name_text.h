#pragma once

#include "engine/parts/text_run_context.h"

#include <string>

/// Appends a text that came from names on the disk: what only stands for odd bytes of a name is shown as U+FFFD or
/// as the backslash that it is.
void append_name_text(TextRunContext& context, std::u16string text);
