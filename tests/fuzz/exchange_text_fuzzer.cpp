#include "fuzz_input.h"
#include "store/exchange_text.h"

#include <algorithm>

namespace {

bool equal_lists(const CommandList& left, const CommandList& right)
{
    return std::ranges::equal(left, right, [](const auto& a, const auto& b) { return a->equals(*b); });
}

}

/// What is on a clipboard. What was read comes back from what is written of it, other words around it or not.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto first = exchange_text::to_commands(FuzzInput(data, size).rest());
    if (!first)
        return 0;
    const std::string written = exchange_text::from_commands(*first);
    const auto second = exchange_text::to_commands("words ]" + written + "\nmore");
    require(second && exchange_text::from_commands(*second) == written, "written the same");
    CommandList merged = *first;
    exchange_text::merge(merged, *second, exchange_text::Place::Start);
    exchange_text::merge(merged, *second, exchange_text::Place::End);
    exchange_text::merge(merged, *first, exchange_text::Place::Replace);
    require(equal_lists(merged, *first), "replaced by what is imported");
    return 0;
}
