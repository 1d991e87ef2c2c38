#pragma once

#include "engine/items/cancel_point.h"
#include "engine/items/child_map.h"
#include "engine/items/mv_item_base.h"

#include <cstdint>

/// Nothing is read or written deeper than this many levels below a selected folder.
inline constexpr int max_folder_level = 1024;

/// A folder with its children, which are read on demand.
class MVItemFolder final : public MVItemBase
{
public:
    MVItemFolder(MVItemInfo info, const MVItemFolder* parent) : MVItemBase(std::move(info), parent) {}

    /// Takes the tree below apart without recursion: paths can be made of any number of components.
    ~MVItemFolder() override;
    MVItemFolder(const MVItemFolder&) = delete;
    MVItemFolder& operator=(const MVItemFolder&) = delete;

    const MVItemFolder* as_folder() const override { return this; }

    /// Reads the directory, the shares for a server alone, at most once: an unreadable folder counts as read and
    /// empty. A child that was there before takes over the read's times and size, or gives its
    /// place up when it has become a folder, or one no more. No two threads may be in here for
    /// one folder, nor may another thread use the children meanwhile.
    /// A read that `cancelled` stops counts as not begun.
    void load_children(const CancelTest& cancelled = {}) const;

    /// True from the beginning of the read on.
    bool children_loaded() const { return children_loaded_; }

    const ChildMap& children() const { return children_; }

    /// Enters an item whose parent this is. A child of the item's name stays in its place, unless one is a file and
    /// the other a folder: then the file system has changed, and the newer one counts.
    void insert(const std::shared_ptr<MVItemBase>& item);

private:
    void read_and_merge(const CancelTest& cancelled) const;
    std::shared_ptr<MVItemBase> child_for(const std::shared_ptr<MVItemBase>& entry) const;

    /// Filled on demand, through items that are const to whoever writes a text.
    mutable ChildMap children_;
    mutable bool children_loaded_ = false;
};
