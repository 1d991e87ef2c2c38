#pragma once

#include <functional>
#include <string>
#include <string_view>

/// Both names of a command.
struct CommandNames {
    std::u16string name;
    std::u16string name1; ///< for one selected item; empty means derived
};

/// Whether some command has this name already.
using NameTaken = std::function<bool(std::u16string_view name)>;

/// Names for a copy of a command called `names`: " (Copy)" behind the name, or the next free " (Copy 2)",
/// " (Copy 3)" and so on, in the place of such an ending that it has already. A one-item name gets the same ending,
/// an empty one stays empty. After a thousand taken names the last of them is given.
CommandNames duplicate_names(const CommandNames& names, const NameTaken& taken);
