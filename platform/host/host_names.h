#pragma once

#include <string>
#include <string_view>

namespace platform {

/// What stands for a backslash in a host name.
constexpr char16_t escaped_backslash = 0xF05C;

/// `from_host_name` for whole paths too: a slash becomes `slash`.
std::u16string decode_host_bytes(std::string_view bytes, char16_t slash);

/// `append_host_name` for whole paths too: a backslash becomes `backslash`.
void append_host_bytes(std::string& bytes, std::u16string_view units, char backslash);

}
