#include "engine/parts/item_parts_list.h"

#include "engine/parts/item_part_factory.h"
#include "engine/text/json_access.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>

namespace json = boost::json;

namespace {

constexpr std::string_view type_key = "item-type";

/// Null for a type that this version doesn't know.
std::shared_ptr<ItemPartBase> read_part(const json::value& element)
{
    const json::object* object = element.if_object();
    if (!object)
        throw std::runtime_error("JSON value not an object");
    const auto* row = find_json(item_part_types, json_access::required_string(*object, type_key));
    return row ? ItemPartFactory::create(row->value, *object) : nullptr;
}

json::object part_to_json(const ItemPartBase& part)
{
    json::object object = part.to_json();
    const std::string error = "Unknown ItemPartBase::Type " + std::to_string(static_cast<std::uint32_t>(part.type()));
    object[type_key] = known_json(item_part_types, part.type(), error);
    return object;
}

}

ItemPartsList::ItemPartsList(const ItemPartsList& other)
{
    for (const auto& part : other)
        append(part->clone());
}

ItemPartsList& ItemPartsList::operator=(const ItemPartsList& other)
{
    if (this != &other)
        *this = ItemPartsList(other);
    return *this;
}

ItemPartsList::ItemPartsList(const json::value& value)
{
    const json::array* array = value.if_array();
    if (!array)
        throw std::runtime_error("JSON value not an array");
    for (const json::value& element : *array)
        if (auto part = read_part(element))
            append(std::move(part));
}

std::shared_ptr<ItemPartBase> ItemPartsList::at(std::size_t position) const
{
    return position < size() ? *std::next(begin(), static_cast<std::ptrdiff_t>(position)) : nullptr;
}

json::array ItemPartsList::to_json() const
{
    json::array array;
    for (const auto& part : parts_)
        array.push_back(part_to_json(*part));
    return array;
}

bool ItemPartsList::operator==(const ItemPartsList& other) const
{
    return std::ranges::equal(parts_, other.parts_,
                              [](const auto& left, const auto& right) { return left->equals(*right); });
}
