#include "engine/items/mv_item_info.h"

MVItemInfo MVItemInfo::of(std::u16string name, const platform::FileAttributes& attributes)
{
    return {.name = std::move(name),
            .modified = attributes.modified,
            .created = attributes.created,
            .accessed = attributes.accessed,
            .size = attributes.size,
            .is_folder = attributes.is_folder,
            .is_link = attributes.is_link};
}
