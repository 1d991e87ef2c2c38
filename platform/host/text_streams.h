#pragma once

#include "platform/host/helper_program.h"

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// Writes the text as UTF-8, a piece at a time; a surrogate without its partner becomes U+FFFD. False, with errno
/// set, when a write fails.
bool write_utf8(int descriptor, std::u16string_view text);

/// All bytes up to the end; empty when that doesn't come in time.
std::optional<std::string> read_all(int descriptor, Deadline deadline);

/// UTF-16 of UTF-8; what is malformed becomes U+FFFD.
std::u16string decode_utf8(std::string_view bytes);

}
