#pragma once

#include "engine/parts/item_part_base.h"

#include <string>
#include <tuple>

class MVItemFolder;
class VellumarkCommand;

/// Expands a folder in place: runs the command's templates over the folder's files or subfolders and writes their
/// text indented, between a start and an end text. A folder without any such text contributes nothing at all.
class ItemPartFolderContents : public ItemPartBase
{
public:
    enum class ContentKind { Files, Folders };

    const std::u16string& indent_text() const { return indent_text_; }

    void set_indent_text(std::u16string text) { indent_text_ = std::move(text); }

    const std::u16string& start_text() const { return start_text_; }

    void set_start_text(std::u16string text) { start_text_ = std::move(text); }

    const std::u16string& end_text() const { return end_text_; }

    void set_end_text(std::u16string text) { end_text_ = std::move(text); }

    boost::json::object to_json() const override;
    /// Reads the folder where that has not been done. A link to a folder is expanded at level 0 only, and nothing
    /// below level 1024.
    void append_text(TextRunContext& context, const MVItemBase& item, int level) const override;
    /// Which children the part visits.
    virtual ContentKind content_kind() const = 0;

    auto settings() const { return std::tie(indent_text_, start_text_, end_text_); }

protected:
    ItemPartFolderContents() = default;
    explicit ItemPartFolderContents(const boost::json::object& json);

private:
    bool visits(const MVItemBase& child, const VellumarkCommand& command) const;
    void append_children(TextRunContext& context, const MVItemFolder& folder, int level) const;

    std::u16string indent_text_;
    std::u16string start_text_;
    std::u16string end_text_;
};

class ItemPartFolderFiles final
    : public ItemPart<ItemPartFolderFiles, ItemPartBase::Type::FolderFiles, ItemPartFolderContents>
{
public:
    ItemPartFolderFiles() = default;

    /// Every key is optional.
    explicit ItemPartFolderFiles(const boost::json::object& json) : ItemPart(json) {}

    ContentKind content_kind() const override { return ContentKind::Files; }
};

class ItemPartFolderSubfolders final
    : public ItemPart<ItemPartFolderSubfolders, ItemPartBase::Type::FolderSubfolders, ItemPartFolderContents>
{
public:
    ItemPartFolderSubfolders() = default;

    /// Every key is optional.
    explicit ItemPartFolderSubfolders(const boost::json::object& json) : ItemPart(json) {}

    ContentKind content_kind() const override { return ContentKind::Folders; }
};
