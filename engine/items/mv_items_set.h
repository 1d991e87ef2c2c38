#pragma once

#include "engine/items/mv_item_folder.h"

#include <memory>
#include <span>
#include <string_view>
#include <vector>

/// The current selection: a tree of items below a nameless root, and the selected items in order of arrival. The
/// tree is kept for the set's whole life, so that nothing is read twice. Nothing here is guarded: while a text is
/// generated from the set it must not change.
class MVItemsSet
{
public:
    MVItemsSet();
    explicit MVItemsSet(std::u16string_view path);
    explicit MVItemsSet(std::span<const std::u16string> paths);

    /// Selects an absolute path in drive or server form and reads its attributes; folders on the way are made
    /// without a look at the disk. A drive or server alone selects the top-level node; a path that ends in a
    /// backslash below that selects nothing. A path selected twice yields two items.
    /// Throws MVItemException for a malformed path and std::runtime_error "GetFileAttributesEx failed" when the
    /// attributes can't be read; what was selected before stays.
    void add_path(std::u16string_view path);

    /// Empties the selection; the tree stays with all it has read.
    void reset();

    const std::vector<std::shared_ptr<MVItemBase>>& items() const { return items_; }

    const MVItemFolder& root() const { return *root_; }

    bool has_files() const;
    bool has_folders() const;
    bool has_links() const;

private:
    void forget_states();

    std::shared_ptr<MVItemFolder> root_;
    std::vector<std::shared_ptr<MVItemBase>> items_;
    /// -1 while not computed, else 0 or 1.
    mutable std::int32_t has_file_state_ = -1, has_folder_state_ = -1, has_link_state_ = -1;
};
