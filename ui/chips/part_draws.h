#pragma once

#include "engine/parts/auto_number_part.h"
#include "engine/parts/checksum_part.h"
#include "engine/parts/date_part.h"
#include "engine/parts/folder_contents_part.h"
#include "engine/parts/name_part.h"
#include "engine/parts/path_part.h"
#include "engine/parts/property_part.h"
#include "engine/parts/size_part.h"
#include "engine/parts/text_part.h"
#include "ui/chips/item_part_base_draw.h"

/// A chip for parts of one class. `Base` is what it has in common with its like alone.
template <typename Part, typename Base = ItemPartBaseDraw>
class PartDraw : public Base
{
public:
    explicit PartDraw(std::shared_ptr<ItemPartBase> part) : Base(std::move(part)) {}

    int part_type() const final { return static_cast<int>(Part::tag); }

protected:
    /// Of a work chip.
    const Part& settings() const { return static_cast<const Part&>(*this->part()); }
};

class TextPartDraw final : public PartDraw<ItemPartText>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xe4f6fc; }

    QString title() const override { return tr("Text"); }

    OptionSegments option_segments() const override;
};

class NamePartDraw final : public PartDraw<ItemPartName>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xfff6e8; }

    QString title() const override { return tr("Name"); }

    OptionSegments option_segments() const override;
};

class PathPartDraw final : public PartDraw<ItemPartPath>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xfffde5; }

    QString title() const override;
    OptionSegments option_segments() const override;
};

class SizePartDraw final : public PartDraw<ItemPartSize>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xfee4e4; }

    QString title() const override { return tr("File Size"); }

    OptionSegments option_segments() const override;
};

class DatePartDraw final : public PartDraw<ItemPartDate>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xf9dbfb; }

    QString title() const override;
    OptionSegments option_segments() const override;
};

class PropertyPartDraw final : public PartDraw<ItemPartProperty>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xece7ff; }

    QString title() const override { return tr("File Property"); }

    OptionSegments option_segments() const override;
};

class AutoNumberPartDraw final : public PartDraw<ItemPartAutoNumber>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xf2fcdf; }

    QString title() const override { return tr("Auto Number"); }

    OptionSegments option_segments() const override;
};

/// What the chips of folder parts have in common.
class FolderContentsPartDraw : public ItemPartBaseDraw
{
public:
    using ItemPartBaseDraw::ItemPartBaseDraw;

    OptionSegments option_segments() const override;
};

class FolderFilesPartDraw final : public PartDraw<ItemPartFolderFiles, FolderContentsPartDraw>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xf7e7b8; }

    QString title() const override { return tr("Files"); }
};

class FolderSubfoldersPartDraw final : public PartDraw<ItemPartFolderSubfolders, FolderContentsPartDraw>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xf7d4b8; }

    QString title() const override { return tr("Subfolders"); }
};

class ChecksumPartDraw final : public PartDraw<ItemPartChecksum>
{
public:
    using PartDraw::PartDraw;

    QColor color() const override { return 0xe4e4fe; }

    QString title() const override { return tr("Checksum"); }

    OptionSegments option_segments() const override;
};

using ChipPointer = std::shared_ptr<ItemPartBaseDraw>;

/// The chip of a part, by its type.
ChipPointer make_chip(const std::shared_ptr<ItemPartBase>& part);

/// A palette chip of a type. One of a type that isn't in the table is a text's.
ChipPointer make_palette_chip(ItemPartBase::Type type);
