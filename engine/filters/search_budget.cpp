#include "engine/filters/search_budget.h"

#include <stdexcept>

void SearchBudget::begin_next_slice()
{
    constexpr std::chrono::milliseconds longest(50);
    const auto now = Clock::now();
    if (slices_done_ == 0)
        begin_ = now;
    if (++slices_done_ == slices || now - begin_ > longest)
        throw std::runtime_error("the search takes too long");
    left_of_slice_ = slice;
}
