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

#include <array>
#include <cstddef>
#include <stdexcept>

namespace {

struct Maker {
    ItemPartBase::Type value;
    std::unique_ptr<ItemPartBase> (*make)();
    std::unique_ptr<ItemPartBase> (*read)(const boost::json::object&);
};

template <typename... Parts>
constexpr std::array<Maker, sizeof...(Parts)> makers_of()
{
    return {Maker{Parts::tag, &ItemPartFactory::make<Parts>, &ItemPartFactory::make<Parts>}...};
}

constexpr auto makers =
    makers_of<ItemPartText, ItemPartName, ItemPartPath, ItemPartSize, ItemPartDate, ItemPartProperty,
              ItemPartAutoNumber, ItemPartFolderFiles, ItemPartFolderSubfolders, ItemPartChecksum>();

/// Every type has its maker, in the order of the types.
consteval bool makers_are_complete()
{
    for (std::size_t i = 0; i < makers.size(); ++i)
        if (makers[i].value != item_part_types[i].value)
            return false;
    return makers.size() == item_part_types.size();
}

static_assert(makers_are_complete());

const Maker& maker_of(ItemPartBase::Type type)
{
    if (const Maker* found = find_value(makers, type))
        return *found;
    throw std::runtime_error("ItemPartFactory::create(): Invalid type");
}

}

std::unique_ptr<ItemPartBase> ItemPartFactory::create(ItemPartBase::Type type)
{
    return maker_of(type).make();
}

std::unique_ptr<ItemPartBase> ItemPartFactory::create(ItemPartBase::Type type, const boost::json::object& json)
{
    return maker_of(type).read(json);
}
