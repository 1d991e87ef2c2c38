#pragma once

#include "engine/items/mv_item_base.h"

#include <memory>
#include <set>
#include <string_view>
#include <vector>

/// A folder's children, each by its name as the file system tells names apart. Their order is that of the names in
/// lower case, compared by UTF-16 unit, the shorter first on a common prefix; names that are alike then come in the
/// order that `platform::compare_names` gives. Names are compared where they are, so that a child costs no second
/// text.
class ChildMap
{
    struct ByName {
        using is_transparent = void;
        bool operator()(const std::shared_ptr<MVItemBase>& left, const std::shared_ptr<MVItemBase>& right) const;
        bool operator()(const std::shared_ptr<MVItemBase>& left, std::u16string_view right) const;
        bool operator()(std::u16string_view left, const std::shared_ptr<MVItemBase>& right) const;
    };

    using Items = std::set<std::shared_ptr<MVItemBase>, ByName>;

public:
    using const_iterator = Items::const_iterator;

    /// Whether one name comes before another.
    static bool name_less(std::u16string_view left, std::u16string_view right);

    const_iterator begin() const { return items_.begin(); }

    const_iterator end() const { return items_.end(); }

    std::size_t size() const { return items_.size(); }

    bool empty() const { return items_.empty(); }

    /// Null when there is no child of that name.
    std::shared_ptr<MVItemBase> find(std::u16string_view name) const;

    /// The child that now has the item's name: `item`, or the one that had it before, which stays. Constant time when
    /// items come in their order.
    MVItemBase& insert(const std::shared_ptr<MVItemBase>& item);

    /// Puts `item` in the place of the child of its name, which there must be and which comes back.
    std::shared_ptr<MVItemBase> replace(std::shared_ptr<MVItemBase> item);

    /// Moves all children to the end of `items`.
    void release_into(std::vector<std::shared_ptr<MVItemBase>>& items);

private:
    Items items_;
};
