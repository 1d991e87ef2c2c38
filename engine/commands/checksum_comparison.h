#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

class MVItemsSet;
class VellumarkCommand;

/// A checksum that has just been made, beside one that the user has copied from somewhere.
struct ChecksumComparison {
    std::u16string clipboard_checksum; ///< as it stands there
    std::u16string file_checksum;
    std::u16string checksum_type_name; ///< its display name
    bool matches = false;              ///< without regard to case
};

/// The clipboard's text; empty when there is none or the clipboard can't be read.
using ReadClipboard = std::function<std::optional<std::u16string>()>;

/// Applies when `command` writes nothing but one checksum, one file is selected and `text` is its checksum. The
/// first run of ASCII letters and digits ("x" ends a run, so that "0x" is passed over) in the clipboard's text that
/// is as long and all hexadecimal is the copied one. Empty when anything of this is not so; the clipboard is read
/// only when it can matter.
std::optional<ChecksumComparison> compare_checksum(const VellumarkCommand& command, const MVItemsSet& selection,
                                                   std::u16string_view text, const ReadClipboard& read_clipboard);
