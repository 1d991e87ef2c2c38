#pragma once

#include <cstdint>
#include <string_view>

/// How much a search may still do: a number of looks at the text, so that a name matches or doesn't whatever else the
/// machine is doing.
class SearchBudget
{
public:
    /// See `looks_for`.
    explicit SearchBudget(std::int64_t looks) : left_(looks) {}

    /// Takes one look from it. Throws std::runtime_error when there is none left.
    void spend()
    {
        if (--left_ < 0)
            give_up();
    }

private:
    std::int64_t left_;

    [[noreturn]] static void give_up();
};

/// The looks at the text that a search for the pattern may take: a hundred times what an ordinary expression takes
/// for the longest name, and less where single looks take long, as in classes of thousands of ranges. All searches
/// end within some 50 ms on a machine of today.
std::int64_t looks_for(std::u16string_view pattern);
