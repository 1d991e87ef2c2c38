#pragma once

#include <string_view>

namespace platform {

enum class PathForm { None, Drive, Server };

/// A path without its long-path prefix and its head: for `C:\dir` the rest is `\dir`, for `\\server\share` it is
/// `server\share`.
struct SplitPath {
    PathForm form = PathForm::None;
    std::u16string_view rest;
};

/// The form is None for another drive and for what is neither drive nor server form. The rest shares the text.
SplitPath split_path(std::u16string_view path);

/// True for a text that can name an entry of a folder: not empty, ".", ".." and free of separators and U+0000.
bool is_entry_name(std::u16string_view name);

}
