#pragma once

#include "engine/text/enum_table.h"

#include <boost/json.hpp>

#include <array>
#include <cstdint>
#include <memory>

class MVItemBase;
struct TextRunContext;

/// One part of a template. Settings change on the interface thread alone, on an object that no text run uses.
class ItemPartBase
{
public:
    enum class Type : std::uint32_t {
        Text,
        Name,
        Path,
        Size,
        Date,
        Property,
        AutoNumber,
        FolderFiles,
        FolderSubfolders,
        Checksum
    };

    virtual ~ItemPartBase() = default;

    /// The settings; the list's writer adds the "item-type". Throws std::runtime_error for a setting outside its
    /// table.
    virtual boost::json::object to_json() const = 0;
    virtual Type type() const = 0;
    virtual std::unique_ptr<ItemPartBase> clone() const = 0;

    /// Appends this part's text for `item`. `level` is 0 for an item of the command's own list and one more for each
    /// folder that the call came through. Never throws for missing data: what can't be had contributes nothing.
    virtual void append_text(TextRunContext& context, const MVItemBase& item, int level) const = 0;

    /// Takes over the settings of a part of the same class; any other part changes nothing.
    virtual void assign_from(const ItemPartBase& other) = 0;

    /// True for a part of the same class with equal settings.
    virtual bool equals(const ItemPartBase& other) const = 0;

protected:
    ItemPartBase() = default;
    ItemPartBase(const ItemPartBase&) = default;
    ItemPartBase& operator=(const ItemPartBase&) = default;
};

inline constexpr std::array<EnumRow<ItemPartBase::Type>, 10> item_part_types{{
    {ItemPartBase::Type::Text, "text"},
    {ItemPartBase::Type::Name, "name"},
    {ItemPartBase::Type::Path, "path"},
    {ItemPartBase::Type::Size, "size"},
    {ItemPartBase::Type::Date, "date"},
    {ItemPartBase::Type::Property, "property"},
    {ItemPartBase::Type::AutoNumber, "auto-number"},
    {ItemPartBase::Type::FolderFiles, "folder-files"},
    {ItemPartBase::Type::FolderSubfolders, "folder-subfolders"},
    {ItemPartBase::Type::Checksum, "checksum"},
}};
static_assert(is_complete(item_part_types));

/// What every part class does alike. `Part` offers `settings()`: its settings as one comparable value. `Base` is what
/// it has in common with its like alone.
template <typename Part, ItemPartBase::Type Tag, typename Base = ItemPartBase>
class ItemPart : public Base
{
public:
    static constexpr ItemPartBase::Type tag = Tag;

    ItemPartBase::Type type() const final { return Tag; }

    std::unique_ptr<ItemPartBase> clone() const final { return std::make_unique<Part>(self()); }

    void assign_from(const ItemPartBase& other) final
    {
        if (const auto* part = dynamic_cast<const Part*>(&other))
            static_cast<Part&>(*this) = *part;
    }

    bool equals(const ItemPartBase& other) const final
    {
        const auto* part = dynamic_cast<const Part*>(&other);
        return part && part->settings() == self().settings();
    }

protected:
    using Base::Base;

private:
    const Part& self() const { return static_cast<const Part&>(*this); }
};
