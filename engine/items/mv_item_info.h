#pragma once

#include "platform/files.h"

#include <cstdint>
#include <string>

/// One directory entry: what a directory read yields and what a filter tests. Times are file times (100 ns since
/// 1601 UTC, 0 when unknown).
struct MVItemInfo {
    std::u16string name; ///< as typed or as the directory read reported it
    std::int64_t modified = 0;
    std::int64_t created = 0;
    std::int64_t accessed = 0;
    std::uint64_t size = 0; ///< bytes; 0 for a folder
    bool is_folder = false;
    bool is_link = false; ///< files and folders alike can be links

    static MVItemInfo of(std::u16string name, const platform::FileAttributes& attributes);
};
