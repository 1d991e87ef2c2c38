#pragma once

#include <string>
#include <string_view>

/// `\\?\` in front of a drive path, `\\?\UNC\` in place of a server path's two backslashes; a path that has the
/// prefix already stays as it is. Every file access uses this form.
std::u16string add_long_path_prefix(std::u16string_view path);

/// Undoes `add_long_path_prefix`; any other path stays as it is.
std::u16string remove_long_path_prefix(std::u16string_view path);
