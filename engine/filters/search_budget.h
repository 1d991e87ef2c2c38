#pragma once

#include <chrono>
#include <cstdint>

/// How much a search may still do. It is over after 2,000,000 looks at the text, everywhere the same: a hundred times
/// what an ordinary expression takes for the longest name, and some 30 ms. Where single looks take long, as in
/// classes of thousands of ranges, it is over after 50 ms.
class SearchBudget
{
public:
    /// Takes one look from it. Throws std::runtime_error when there is none left.
    void spend()
    {
        if (--left_of_slice_ == 0)
            begin_next_slice();
    }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::int32_t slice = 8192, slices = 2'000'000 / slice;

    void begin_next_slice();

    std::int32_t left_of_slice_ = slice;
    std::int32_t slices_done_ = 0;
    /// Set after the first slice, so that ordinary searches never ask for the time.
    Clock::time_point begin_;
};
