#include "engine/properties/item_property_reader.h"

#include <algorithm>

ItemPropertyReader::ItemPropertyReader(std::u16string path) : path_(std::move(path)) {}

std::vector<std::u16string> ItemPropertyReader::property_names() const
{
    return platform::FileProperties(path_).names();
}

void ItemPropertyReader::load_display_values(std::span<const std::u16string> names)
{
    platform::FileProperties file(path_);
    for (const std::u16string& name : names)
        if (const auto text = file.display_text(name))
            values_.insert_or_assign(name, without_direction_marks(*text));
}

std::u16string ItemPropertyReader::display_value(std::u16string_view name) const
{
    const auto found = values_.find(name);
    return found == values_.end() ? std::u16string() : found->second;
}

std::u16string without_direction_marks(std::u16string_view text)
{
    std::u16string result(text);
    std::erase_if(result, [](char16_t unit) { return unit >= 0x202A && unit <= 0x202E; });
    return result;
}

std::optional<platform::PropertyValue> property_raw_value(std::u16string_view path, std::u16string_view name)
{
    return platform::FileProperties(path).value(name);
}
