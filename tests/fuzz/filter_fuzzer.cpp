#include "engine/filters/item_filter.h"
#include "fuzz_input.h"

#include <ctime>

namespace {

constexpr std::size_t longest_pattern = 200, longest_name = 255;
/// An optimised build without sanitizers takes at most a thirtieth of it.
constexpr double longest_time = 3; // seconds

double processor_time()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

}

/// A byte for mode and action, a line with the pattern, then the name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const unsigned choice = input.byte();
    ItemFilter filter;
    filter.set_filter_mode(filter_modes[choice % 3].value);
    filter.set_filter_action(filter_actions[choice / 3 % 2].value);
    filter.set_filter_pattern(input.line().substr(0, longest_pattern));
    const std::u16string name = input.text().substr(0, longest_name);
    filter.is_pattern_valid();

    const double start = processor_time();
    const bool found = filter.matches(name);
    require(processor_time() - start < longest_time, "a name takes no longer than that");

    require(filter.passes(name) ==
                (filter.filter_pattern().empty() || found == (filter.filter_action() == ItemFilter::Action::Include)),
            "the action decides");
    const ItemFilter copy(filter);
    require(copy.matches(name) == found && copy == filter, "a copy does the same");
    return 0;
}
