#pragma once

#include "engine/parts/item_part_base.h"

#include <list>
#include <memory>

/// The ordered parts of one template. A copy has clones of all parts; single parts are shared, so that an editor can
/// hold on to a part while it is in or out of the list.
class ItemPartsList
{
public:
    using Parts = std::list<std::shared_ptr<ItemPartBase>>;

    ItemPartsList() = default;
    ItemPartsList(const ItemPartsList& other);
    ItemPartsList& operator=(const ItemPartsList& other);
    ItemPartsList(ItemPartsList&&) = default;
    ItemPartsList& operator=(ItemPartsList&&) = default;

    /// Reads an array of parts; a part of unknown "item-type" is left out. Throws std::runtime_error "JSON value not
    /// an array", "JSON value not an object" or "Missing key in JSON: item-type", and what a part's reader throws.
    explicit ItemPartsList(const boost::json::value& json);
    /// Throws std::runtime_error for a part whose type or a setting is outside its table.
    boost::json::array to_json() const;

    Parts::const_iterator begin() const { return parts_.begin(); }

    Parts::const_iterator end() const { return parts_.end(); }

    std::size_t size() const { return parts_.size(); }

    bool empty() const { return parts_.empty(); }

    /// Null for a position that doesn't exist.
    std::shared_ptr<ItemPartBase> at(std::size_t position) const;

    void append(std::shared_ptr<ItemPartBase> part) { parts_.push_back(std::move(part)); }

    /// `at` may be the end.
    void insert(Parts::const_iterator at, std::shared_ptr<ItemPartBase> part) { parts_.insert(at, std::move(part)); }

    void remove(Parts::const_iterator at) { parts_.erase(at); }

    /// Equal parts in the same order.
    bool operator==(const ItemPartsList& other) const;

private:
    Parts parts_;
};
