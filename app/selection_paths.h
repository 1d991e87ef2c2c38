#pragma once

#include "app/path_answer.h"
#include "engine/items/mv_items_set.h"

#include <QStringList>

#include <cstddef>
#include <memory>
#include <span>

/// A selection that has been read and is yet to be taken.
struct NewSelection {
    MVItemsSet items;
    std::size_t silent = 0; ///< so many of the items did not answer and are taken by their names alone, for files
};

/// Selects `paths`, in drive or server form, by what each has answered, without a look at the disk. A path that can't
/// be added goes to the debug log and is left out. Any thread; takes time that grows with the number of paths. What
/// is in the selection when it is let go is freed on a thread of its own, since a large one takes long.
std::shared_ptr<NewSelection> select_paths(const QStringList& paths, std::span<const PathAnswer> answers);

/// The item in a tree of its own, which lives as long as the pointer: a copy without what the item has cached.
std::shared_ptr<const MVItemBase> standing_alone(const MVItemBase& item);
