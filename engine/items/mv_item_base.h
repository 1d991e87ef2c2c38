#pragma once

#include "engine/checksums/checksum_type.h"
#include "engine/items/mv_item_info.h"
#include "engine/text/case_type.h"

#include <atomic>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class MVItemFolder;

/// How an item's path is written.
struct PathStyle {
    std::u16string_view separator = {};       ///< empty counts as one backslash
    std::int32_t max_parents = 0;             ///< names in the path at the most, the item's own included; 0: no limit
    bool no_drive = false;                    ///< leave the drive out and start with a separator
    CaseType case_type = CaseType::Unchanged; ///< applied name by name, never to a separator
};

/// One selected or discovered file or folder. Its attributes are read once and don't change, but for the times and
/// size that the read of its parent folder brings. A parent owns its children and outlives them.
class MVItemBase
{
public:
    virtual ~MVItemBase();
    MVItemBase(const MVItemBase&) = delete;
    MVItemBase& operator=(const MVItemBase&) = delete;

    bool is_folder() const { return as_folder() != nullptr; }

    /// The item itself when it is a folder, else null.
    virtual const MVItemFolder* as_folder() const { return nullptr; }

    const MVItemInfo& info() const { return info_; }

    const std::u16string& name() const { return info_.name; }

    bool is_link() const { return info_.is_link; }

    /// Null only for the root of a set.
    const MVItemFolder* parent() const { return parent_; }

    /// Appends the item's path. A drive is written with a separator behind it; a path that begins with two
    /// backslashes has them replaced too when the separator is "/" or two backslashes.
    void append_path(std::u16string& text, const PathStyle& style) const;

    /// The path as the file system knows it (`C:\` for a drive), in a text of its own.
    std::u16string full_path() const;

    /// Name of the node just below the root (`C:`, `\\server`); empty for the root itself.
    std::u16string_view root_name() const;

    /// First character of a drive's `root_name`; empty for a server.
    std::u16string_view drive_letter() const;

    /// Empty when `index` is outside the list.
    std::u16string selector_part(std::int32_t index) const;
    void set_selector_parts(std::vector<std::u16string> parts);

    /// The display text of a property, read from the file once and kept, also when it is empty. Safe from any thread;
    /// goes to the file without a lock, and of two that read it at once the first counts for both.
    std::u16string property_value(std::u16string_view name) const;

    /// The stored checksum in lower-case digits, empty when there is none. Safe from any thread.
    std::u16string cached_checksum(ChecksumType type) const;
    /// Creates or replaces the stored checksum. Safe from any thread.
    void store_checksum(ChecksumType type, std::u16string text) const;

protected:
    MVItemBase(MVItemInfo info, const MVItemFolder* parent);

    /// Keeps an item that has lost its place in the tree: what is selected below it needs its parents.
    void keep(std::shared_ptr<MVItemBase> replaced) const;

private:
    friend class MVItemFolder;
    struct Extras;

    Extras& extras() const;
    void take_times_and_size(const MVItemInfo& info);

    MVItemInfo info_;
    const MVItemFolder* parent_;
    /// Made on first use: a selection can hold millions of items that never need it.
    mutable std::atomic<Extras*> extras_ = nullptr;
};

/// Makes an `MVItemFolder` when `info.is_folder` is set, else an `MVItemFile`.
std::shared_ptr<MVItemBase> make_item(MVItemInfo info, const MVItemFolder* parent);
