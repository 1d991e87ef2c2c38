#pragma once

#include <string>
#include <string_view>

/// Whether a unit would move the cursor of a terminal, change its state or turn the direction of writing.
bool controls_terminal(char16_t unit);

/// UTF-8 text for a terminal: what would control it becomes "?", malformed bytes U+FFFD. Names come from anywhere.
std::string printable(std::string_view utf8);
