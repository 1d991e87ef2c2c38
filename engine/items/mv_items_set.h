#pragma once

#include "engine/items/mv_item_folder.h"

#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string_view>
#include <vector>

/// The attributes of a path that was to be selected can't be read: "GetFileAttributesEx failed".
class AttributesUnreadable : public std::runtime_error
{
public:
    AttributesUnreadable() : std::runtime_error("GetFileAttributesEx failed") {}
};

/// The current selection: a tree of items below a nameless root, and the selected items in order of arrival. The
/// tree is kept until the set gives its items away, so that no node of it is read twice. Nothing here is guarded:
/// while a text is generated from the set it must not change.
class MVItemsSet
{
public:
    MVItemsSet();
    /// With these paths selected, in their order; throws what `add_path` throws.
    explicit MVItemsSet(std::u16string_view path);
    explicit MVItemsSet(std::span<const std::u16string> paths);

    /// Selects an absolute path in drive or server form and reads its attributes; folders on the way are made
    /// without a look at the disk. A drive or server alone selects the top-level node; a path that ends in a
    /// backslash below that selects nothing. A path selected twice yields two items. A drive's letter has no case.
    /// Throws MVItemException for a malformed path and AttributesUnreadable when the attributes can't be read; what
    /// was selected before stays.
    void add_path(std::u16string_view path) { add_path(path, attributes_of(path)); }

    /// The same without a look at the disk, with what `attributes_of` the path gave.
    void add_path(std::u16string_view path, const std::optional<platform::FileAttributes>& attributes);

    /// Reads what has to be known of a path before it can be selected. Empty when its attributes can't be read, and
    /// for a path of which none are needed. Any thread.
    static std::optional<platform::FileAttributes> attributes_of(std::u16string_view path);

    /// Exchanges all that the two sets hold, in constant time however many items they are. Items stay where they are.
    void swap(MVItemsSet& other) noexcept;

    /// Empties the selection; the tree stays with all it has read.
    void reset();

    const std::vector<std::shared_ptr<MVItemBase>>& items() const { return items_; }

    const MVItemFolder& root() const { return *root_; }

    bool has_files() const { return has_files_; }

    bool has_folders() const { return has_folders_; }

    bool has_links() const { return has_links_; }

private:
    void select(std::shared_ptr<MVItemBase> item);

    std::shared_ptr<MVItemFolder> root_;
    std::vector<std::shared_ptr<MVItemBase>> items_;
    bool has_files_ = false, has_folders_ = false, has_links_ = false;
};
