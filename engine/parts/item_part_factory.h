#pragma once

#include "engine/parts/item_part_base.h"

#include <memory>

/// Makes parts of every type.
class ItemPartFactory
{
public:
    /// A part with default settings. Throws std::runtime_error "ItemPartFactory::create(): Invalid type" for a value
    /// that is no type.
    static std::unique_ptr<ItemPartBase> create(ItemPartBase::Type type);

    /// A part read from JSON; throws the same, and what the part's reader throws.
    static std::unique_ptr<ItemPartBase> create(ItemPartBase::Type type, const boost::json::object& json);

    /// The same for a type that is known beforehand.
    template <typename Part>
    static std::unique_ptr<ItemPartBase> make()
    {
        return std::make_unique<Part>();
    }

    template <typename Part>
    static std::unique_ptr<ItemPartBase> make(const boost::json::object& json)
    {
        return std::make_unique<Part>(json);
    }
};
