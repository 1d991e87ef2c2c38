#pragma once

#include "engine/parts/item_part_base.h"
#include "engine/text/case_type.h"

#include <string>
#include <tuple>

struct PathStyle;

/// Writes an item's path, its folder's path, its drive, or what a link leads to.
class ItemPartPath final : public ItemPart<ItemPartPath, ItemPartBase::Type::Path>
{
public:
    enum class PathType : std::uint32_t {
        FullPath,
        PathToParentFolder,
        PathNoDrive,
        DriveOnly,
        DriveLetterOnly,
        LinkTarget
    };

    ItemPartPath() = default;
    /// Throws std::runtime_error when "separator-text" is missing, "num-parents" is missing while the limit is on,
    /// or "path-type" is unknown. Without "path-type" the older "include-item-name" decides.
    explicit ItemPartPath(const boost::json::object& json);

    PathType path_type() const { return path_type_; }

    void set_path_type(PathType type) { path_type_ = type; }

    bool limit_num_parents() const { return limit_num_parents_; }

    void set_limit_num_parents(bool limit) { limit_num_parents_ = limit; }

    /// Folder names in the path at the most; 0 is no limit.
    std::int32_t num_parents() const { return num_parents_; }

    void set_num_parents(std::int32_t parents) { num_parents_ = parents; }

    const std::u16string& separator_text() const { return separator_text_; }

    /// An empty text becomes one backslash.
    void set_separator_text(std::u16string text);

    CaseType case_type() const { return case_type_; }

    void set_case_type(CaseType type) { case_type_ = type; }

    boost::json::object to_json() const override;
    void append_text(TextRunContext& context, const MVItemBase& item, int level) const override;

    auto settings() const
    {
        return std::tie(path_type_, limit_num_parents_, num_parents_, separator_text_, case_type_);
    }

private:
    PathStyle style(std::int32_t own_names) const;
    std::u16string text_of(const MVItemBase& item) const;
    std::u16string link_target_text(const MVItemBase& item) const;

    PathType path_type_ = PathType::FullPath;
    bool limit_num_parents_ = false;
    std::int32_t num_parents_ = 1;
    std::u16string separator_text_ = u"\\";
    CaseType case_type_ = CaseType::Unchanged;
};

inline constexpr std::array<EnumRow<ItemPartPath::PathType>, 6> path_types{{
    {ItemPartPath::PathType::FullPath, "full-path"},
    {ItemPartPath::PathType::PathToParentFolder, "path-to-parent-folder"},
    {ItemPartPath::PathType::PathNoDrive, "path-no-drive"},
    {ItemPartPath::PathType::DriveOnly, "drive-only"},
    {ItemPartPath::PathType::DriveLetterOnly, "drive-letter-only"},
    {ItemPartPath::PathType::LinkTarget, "link-target"},
}};
static_assert(is_complete(path_types));
