#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

/// What tells whether a path still leads to the same bytes. Two stamps of one path that are equal and settled mean
/// that nothing changed in between.
struct FileStamp {
    /// Of the path's own entry and, behind a link, of what it leads to.
    struct Entry {
        std::uint64_t device = 0, inode = 0, size = 0;
        /// Nanoseconds since 1970.
        std::int64_t modified = 0, changed = 0;

        bool operator==(const Entry&) const = default;
    };

    Entry own, target;
    /// False when the last change is so young that another one could bear the same time: file systems count in steps
    /// of up to two seconds.
    bool is_settled = false;
};

/// Empty when the path leads nowhere.
std::optional<FileStamp> file_stamp(std::u16string_view path);

}
