#include "engine/parts/item_part_factory.h"

#include "engine/parts/auto_number_part.h"
#include "engine/parts/checksum_part.h"
#include "engine/parts/date_part.h"
#include "engine/parts/folder_contents_part.h"
#include "engine/parts/name_part.h"
#include "engine/parts/path_part.h"
#include "engine/parts/property_part.h"
#include "engine/parts/size_part.h"
#include "engine/parts/text_part.h"

#include <algorithm>
#include <stdexcept>

namespace {

struct Maker {
    ItemPartBase::Type type;
    std::unique_ptr<ItemPartBase> (*make)();
    std::unique_ptr<ItemPartBase> (*read)(const boost::json::object&);
};

template <typename Part>
constexpr Maker maker(ItemPartBase::Type type)
{
    return {type, &ItemPartFactory::make<Part>, &ItemPartFactory::make<Part>};
}

constexpr std::array makers{
    maker<ItemPartText>(ItemPartBase::Type::Text),
    maker<ItemPartName>(ItemPartBase::Type::Name),
    maker<ItemPartPath>(ItemPartBase::Type::Path),
    maker<ItemPartSize>(ItemPartBase::Type::Size),
    maker<ItemPartDate>(ItemPartBase::Type::Date),
    maker<ItemPartProperty>(ItemPartBase::Type::Property),
    maker<ItemPartAutoNumber>(ItemPartBase::Type::AutoNumber),
    maker<ItemPartFolderFiles>(ItemPartBase::Type::FolderFiles),
    maker<ItemPartFolderSubfolders>(ItemPartBase::Type::FolderSubfolders),
    maker<ItemPartChecksum>(ItemPartBase::Type::Checksum),
};

const Maker* find_maker(ItemPartBase::Type type)
{
    const auto found = std::ranges::find(makers, type, &Maker::type);
    return found == makers.end() ? nullptr : &*found;
}

const Maker& maker_of(ItemPartBase::Type type)
{
    if (const Maker* found = find_maker(type))
        return *found;
    throw std::runtime_error("ItemPartFactory::create(): Invalid type");
}

}

bool ItemPartFactory::knows(ItemPartBase::Type type)
{
    return find_maker(type) != nullptr;
}

std::unique_ptr<ItemPartBase> ItemPartFactory::create(ItemPartBase::Type type)
{
    return maker_of(type).make();
}

std::unique_ptr<ItemPartBase> ItemPartFactory::create(ItemPartBase::Type type, const boost::json::object& json)
{
    return maker_of(type).read(json);
}
