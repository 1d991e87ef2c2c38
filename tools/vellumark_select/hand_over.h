#pragma once

#include <string_view>

/// Sends a message to the running application; starts the application when none runs, and waits until it has read the
/// message. Throws std::runtime_error when it can't be started or doesn't take the message.
void hand_over(std::string_view message);
