#pragma once

#include "engine/items/mv_item_base.h"

#include <memory>
#include <set>
#include <string_view>
#include <vector>

/// A folder's children in the order of their keys: the names in lower case, compared by UTF-16 unit, the shorter
/// first on a common prefix. Keys are compared where they are, in the names, so that a child costs no second text.
class ChildMap
{
    struct ByKey {
        using is_transparent = void;
        bool operator()(const std::shared_ptr<MVItemBase>& left, const std::shared_ptr<MVItemBase>& right) const;
        bool operator()(const std::shared_ptr<MVItemBase>& left, std::u16string_view right) const;
        bool operator()(std::u16string_view left, const std::shared_ptr<MVItemBase>& right) const;
    };

    using Items = std::set<std::shared_ptr<MVItemBase>, ByKey>;

public:
    using const_iterator = Items::const_iterator;

    /// Whether the key of one name comes before that of another.
    static bool key_less(std::u16string_view left, std::u16string_view right);

    const_iterator begin() const { return items_.begin(); }

    const_iterator end() const { return items_.end(); }

    std::size_t size() const { return items_.size(); }

    bool empty() const { return items_.empty(); }

    /// Null when no child has the name's key.
    std::shared_ptr<MVItemBase> find(std::u16string_view name) const;

    /// The child that now has the item's key: `item`, or the one that had it before, which stays. Constant time when
    /// items come in key order.
    MVItemBase& insert(const std::shared_ptr<MVItemBase>& item);

    /// Moves all children to the end of `items`.
    void release_into(std::vector<std::shared_ptr<MVItemBase>>& items);

private:
    Items items_;
};
