#pragma once

#include "engine/checksums/checksum_type.h"
#include "engine/items/cancel_point.h"

#include <string>
#include <string_view>

/// Digest of a file's content in lower-case hexadecimal digits, as many as the type's table row says. Empty when
/// the file can't be opened (only regular files can), the machine's cryptography fails, `cancelled` says stop or
/// the type is outside the table. A read error counts as the end of the file. Constant memory; `cancelled` is asked
/// once every 64 KiB. `path` in drive or server form. May be called from several threads at once.
std::u16string file_checksum(std::u16string_view path, ChecksumType type, const CancelTest& cancelled);
