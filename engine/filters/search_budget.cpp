#include "engine/filters/search_budget.h"

#include <stdexcept>

namespace {

/// What makes each look of a pattern dearer: the characters within its classes, and its groups, whose places are kept
/// and put back as the search goes on and returns.
std::int64_t weight_of(std::u16string_view pattern)
{
    constexpr std::int64_t weight_of_group = 4;
    std::int64_t weight = 0;
    bool is_in_class = false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char16_t unit = pattern[i];
        if (is_in_class)
            ++weight;
        else if (unit == u'(')
            weight += weight_of_group;
        if (unit == u'\\')
            ++i;
        else if (unit == u'[' || unit == u']')
            is_in_class = unit == u'[';
    }
    return weight;
}

}

void SearchBudget::give_up()
{
    throw std::runtime_error("the search takes too long");
}

std::int64_t looks_for(std::u16string_view pattern)
{
    constexpr std::int64_t most_looks = 2'000'000, light_weight = 1000;
    return most_looks * light_weight / (light_weight + weight_of(pattern));
}
