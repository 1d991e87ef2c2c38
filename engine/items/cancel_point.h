#pragma once

#include <cstdint>
#include <functional>
#include <utility>

/// True means stop. May be empty, which never stops.
using CancelTest = std::function<bool()>;

/// Leaves work whose result nobody wants any more; caught where the work was begun.
struct Cancelled {
};

/// Asked again and again by work that has no end in sight, such as the sort of a long list.
class CancelPoint
{
public:
    explicit CancelPoint(CancelTest test) : test_(std::move(test)) {}

    /// For small steps: asks now and then. Throws Cancelled.
    void step()
    {
        if ((++steps_ & 0x3FF) == 0)
            ask();
    }

    /// Throws Cancelled.
    void ask() const
    {
        if (test_ && test_())
            throw Cancelled();
    }

private:
    CancelTest test_;
    std::uint32_t steps_ = 0;
};
