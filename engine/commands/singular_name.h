#pragma once

#include <string>
#include <string_view>

/// A command's name for one selected item: "names", "paths", "files" and "folders", in any case and at the end of
/// longer words too, lose their "s".
std::u16string singular_name(std::u16string_view name);
