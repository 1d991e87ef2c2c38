#pragma once

#include <cstdio>

/// A time in which an event loop did nothing else: as it went by, and what its thread worked.
struct Block {
    double wall_ms = 0;
    double cpu_ms = 0;
};

/// Prints one measurement a line and remembers whether a target was missed.
class Report
{
public:
    /// A figure in milliseconds that is not to be above `target`.
    void add(const char* scenario, const char* what, double ms, double target)
    {
        const bool ok = ms <= target;
        missed_ |= !ok;
        std::printf("%-34s %-34s %9.1f ms   %s %.0f\n", scenario, what, ms, ok ? "ok" : "MISSED", target);
        std::fflush(stdout);
    }

    void add(const char* scenario, const char* what, Block block, double target)
    {
        const bool ok = block.wall_ms <= target;
        missed_ |= !ok;
        std::printf("%-34s %-34s %9.1f ms   %s %.0f (worked %.1f)\n", scenario, what, block.wall_ms,
                    ok ? "ok" : "MISSED", target, block.cpu_ms);
        std::fflush(stdout);
    }

    void add(const char* scenario, const char* what, double ms)
    {
        std::printf("%-34s %-34s %9.1f ms\n", scenario, what, ms);
        std::fflush(stdout);
    }

    void check(const char* scenario, const char* what, bool ok)
    {
        missed_ |= !ok;
        std::printf("%-34s %-34s %s\n", scenario, what, ok ? "ok" : "MISSED");
    }

    bool missed() const { return missed_; }

private:
    bool missed_ = false;
};
