#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <list>
#include <optional>
#include <vector>

/// Merges two lists that were made of the same one, so that nothing is lost that either side added or changed. What
/// one side deleted goes if the other left it as it was. `Rules` tells elements apart:
/// - `equal(a, b)`: nothing was changed between them.
/// - `same(a, b)`: they can be two forms of one element; equal ones need not be asked about.
/// - `set_apart(theirs)`: as it stands beside another form of it.
template <typename T, typename Rules>
class ThreeWayMerge
{
public:
    ThreeWayMerge(const std::vector<T>& base, const std::vector<T>& mine, const std::vector<T>& theirs, Rules& rules)
        : base_(base), mine_(mine), theirs_(theirs), rules_(rules), twins_(matches(mine, theirs, false)),
          mine_of_theirs_(inverse(twins_, theirs.size())), base_of_mine_(matches(mine, base, true)),
          base_of_theirs_(matches(theirs, base, true)), nodes_of_theirs_(theirs.size(), nodes_.end())
    {}

    /// In the order of `mine`; what comes in stands behind its neighbour in `theirs`, or behind the form of it in
    /// `mine`. To be called once.
    std::vector<T> merged()
    {
        for (std::size_t place = 0; place < mine_.size(); ++place)
            take_mine(place);
        for (std::size_t place = 0; place < theirs_.size(); ++place)
            take_theirs(place);
        return {std::make_move_iterator(nodes_.begin()), std::make_move_iterator(nodes_.end())};
    }

private:
    using Nodes = std::list<T>;
    using Place = std::optional<std::size_t>;

    /// Where each element of a list has its like in another one, each place given once: equal elements first, then,
    /// where asked for, other forms.
    std::vector<Place> matches(const std::vector<T>& list, const std::vector<T>& other, bool with_forms) const
    {
        std::vector<Place> places(list.size());
        std::vector<bool> is_given(other.size());
        const auto give = [&](const auto& fits) {
            for (std::size_t i = 0; i < list.size(); ++i)
                for (std::size_t k = 0; k < other.size() && !places[i]; ++k)
                    if (!is_given[k] && fits(list[i], other[k])) {
                        places[i] = k;
                        is_given[k] = true;
                    }
        };
        give([this](const T& a, const T& b) { return rules_.equal(a, b); });
        if (with_forms)
            give([this](const T& a, const T& b) { return rules_.same(a, b); });
        return places;
    }

    static std::vector<Place> inverse(const std::vector<Place>& places, std::size_t size)
    {
        std::vector<Place> result(size);
        for (std::size_t i = 0; i < places.size(); ++i)
            if (const Place& place = places[i])
                result[*place] = i;
        return result;
    }

    bool is_changed(const T& element, const Place& origin) const
    {
        return !origin || !rules_.equal(element, base_[*origin]);
    }

    /// The other side's form of what was made of that element of the base, unless this side has it just so.
    Place their_form(const Place& origin) const
    {
        const auto found = origin ? std::ranges::find(base_of_theirs_, origin) : base_of_theirs_.end();
        if (found == base_of_theirs_.end())
            return {};
        const auto place = static_cast<std::size_t>(found - base_of_theirs_.begin());
        return mine_of_theirs_[place] ? Place() : Place(place);
    }

    void take_mine(std::size_t place)
    {
        const T& own = mine_[place];
        const Place origin = base_of_mine_[place];
        const Place other = twins_[place] ? twins_[place] : their_form(origin);
        if (!twins_[place] && !is_changed(own, origin)) {
            // The other side has changed it, or deleted it.
            if (!other)
                return;
            nodes_.push_back(theirs_[*other]);
            is_taken_[*other] = true;
        } else {
            nodes_.push_back(own);
        }
        if (other)
            nodes_of_theirs_[*other] = std::prev(nodes_.end());
    }

    void take_theirs(std::size_t place)
    {
        const T& other = theirs_[place];
        // This side has it, has changed it further or has deleted it.
        if (mine_of_theirs_[place] || is_taken_[place] || !is_changed(other, base_of_theirs_[place]))
            return;
        const bool has_form = std::ranges::any_of(nodes_, [&](const T& node) { return rules_.same(node, other); });
        nodes_of_theirs_[place] = nodes_.insert(behind_neighbour(place), has_form ? rules_.set_apart(other) : other);
    }

    typename Nodes::iterator behind_neighbour(std::size_t place)
    {
        // Its own node is this side's form of it.
        for (std::size_t i = place + 1; i-- > 0;)
            if (nodes_of_theirs_[i] != nodes_.end())
                return std::next(nodes_of_theirs_[i]);
        return nodes_.begin();
    }

    const std::vector<T>& base_;
    const std::vector<T>& mine_;
    const std::vector<T>& theirs_;
    Rules& rules_;
    std::vector<Place> twins_, mine_of_theirs_; ///< equal elements of both sides
    std::vector<Place> base_of_mine_, base_of_theirs_;
    Nodes nodes_;
    std::vector<typename Nodes::iterator>
        nodes_of_theirs_; ///< where each of theirs stands, `nodes_.end()` for nowhere
    std::vector<bool> is_taken_ = std::vector<bool>(theirs_.size()); ///< in the place of mine
};
