#include "ui/chips/chip_matching.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

namespace {

using Indices = std::vector<std::size_t>;

class Matching
{
public:
    Matching(const PartsInOrder& old_parts, const PartsInOrder& new_parts)
        : old_(old_parts), new_(new_parts), used_(old_.size()), chip_of_(new_.size(), -1)
    {}

    std::vector<int> result()
    {
        match_identical();
        match_equal();
        match_types();
        return chip_of_;
    }

private:
    void match(std::size_t old_index, std::size_t new_index)
    {
        used_[old_index] = true;
        chip_of_[new_index] = static_cast<int>(old_index);
    }

    Indices unused_chips() const
    {
        Indices left;
        for (std::size_t i = 0; i < old_.size(); ++i)
            if (!used_[i])
                left.push_back(i);
        return left;
    }

    Indices unmatched_parts() const
    {
        Indices left;
        for (std::size_t j = 0; j < new_.size(); ++j)
            if (chip_of_[j] < 0)
                left.push_back(j);
        return left;
    }

    void match_identical()
    {
        std::unordered_map<const ItemPartBase*, std::size_t> chips;
        for (std::size_t i = 0; i < old_.size(); ++i)
            chips.emplace(old_[i], i);
        for (std::size_t j = 0; j < new_.size(); ++j)
            if (const auto chip = chips.find(new_[j]); chip != chips.end() && !used_[chip->second])
                match(chip->second, j);
    }

    void match_equal()
    {
        Indices chips = unused_chips();
        Indices parts = unmatched_parts();
        // The walk back through the table would begin with these: no need to have them in it.
        while (!chips.empty() && !parts.empty() && is_equal(chips.back(), parts.back())) {
            match(chips.back(), parts.back());
            chips.pop_back();
            parts.pop_back();
        }
        match_longest_run(chips, parts);
    }

    void match_longest_run(const Indices& chips, const Indices& parts)
    {
        const std::size_t columns = parts.size() + 1;
        std::vector<std::uint32_t> length((chips.size() + 1) * columns);
        for (std::size_t i = 1; i <= chips.size(); ++i)
            for (std::size_t j = 1; j <= parts.size(); ++j)
                length[i * columns + j] = is_equal(chips[i - 1], parts[j - 1])
                                              ? length[(i - 1) * columns + j - 1] + 1
                                              : std::max(length[(i - 1) * columns + j], length[i * columns + j - 1]);
        std::size_t i = chips.size();
        std::size_t j = parts.size();
        while (i > 0 && j > 0) {
            if (is_equal(chips[i - 1], parts[j - 1]))
                match(chips[--i], parts[--j]);
            else if (length[(i - 1) * columns + j] < length[i * columns + j - 1])
                --j;
            else
                --i;
        }
    }

    void match_types()
    {
        const Indices chips = unused_chips();
        for (const std::size_t part : unmatched_parts()) {
            const auto of_type = [&](std::size_t chip) {
                return !used_[chip] && old_[chip]->type() == new_[part]->type();
            };
            if (const auto chip = std::ranges::find_if(chips, of_type); chip != chips.end())
                match(*chip, part);
        }
    }

    bool is_equal(std::size_t old_index, std::size_t new_index) const
    {
        return new_[new_index]->equals(*old_[old_index]);
    }

    const PartsInOrder& old_;
    const PartsInOrder& new_;
    std::vector<bool> used_;
    std::vector<int> chip_of_;
};

}

std::vector<int> matched_chips(const PartsInOrder& old_parts, const PartsInOrder& new_parts)
{
    return Matching(old_parts, new_parts).result();
}
