#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The extensions of a lower-cased list separated by ";": of each piece one leading dot goes, then the blanks around
/// it; empty pieces are left out.
std::vector<std::u16string> parse_extensions(std::u16string_view list);

/// Whether the name's extension, all that follows its last dot, is in the lower-cased list. A name without an
/// extension matches nothing; the case of the name does not count.
bool has_extension_of(std::u16string_view name, const std::vector<std::u16string>& extensions);
