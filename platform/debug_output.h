#pragma once

#include <string_view>

namespace platform {

/// Hands text to whoever watches the program for faults; here it goes to standard error, in one piece. No user is
/// meant to see it. Any thread, at any time until the process is gone.
void debug_output(std::string_view text);

}
