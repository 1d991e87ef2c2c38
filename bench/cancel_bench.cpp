#include "bench_files.h"

#include "engine/commands/vellumark_command.h"
#include "engine/items/mv_items_set.h"
#include "engine/runner/vellumark_thread.h"
#include "platform/paths.h"

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

class NoWatcher final : public VellumarkWatcher
{
public:
    void text_report(std::u16string, std::uint32_t) override { finished = true; }

    std::atomic<bool> finished = false;
};

VellumarkCommand command_of(std::string_view json)
{
    return VellumarkCommand(boost::json::parse(json).as_object());
}

/// The time from a cancel to the run's end, when the run has been on for so long.
void cancel_after(benchmark::State& state, std::chrono::microseconds delay, const VellumarkCommand& command,
                  const std::function<std::shared_ptr<MVItemsSet>()>& make_selection)
{
    double longest = 0;
    while (state.KeepRunning()) {
        NoWatcher watcher;
        const auto selection = make_selection();
        auto thread = std::make_unique<VellumarkThread>(watcher, selection);
        thread->request(&command, 1);
        std::this_thread::sleep_for(delay);
        if (watcher.finished)
            throw std::runtime_error("the run was over before it could be cancelled");
        const auto begin = Clock::now();
        thread.reset();
        const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        state.SetIterationTime(seconds);
        longest = std::max(longest, seconds * 1e3);
    }
    state.counters["longest_ms"] = longest;
}

constexpr std::string_view names = R"({"name":"n","separator":"\n","fileParts":[
    {"item-type":"name","name-type":"full-name"},{"item-type":"name","name-type":"full-name","case-type":"TitleCase"}]})";

void cancel_hashing(benchmark::State& state)
{
    const BenchFiles files(0);
    const std::u16string path = files.write("big", "");
    if (truncate(platform::to_host_path(path).c_str(), std::int64_t{64} << 30) != 0)
        throw std::runtime_error("no sparse file");
    const auto command = command_of(
        R"({"name":"n","separator":"\n","fileParts":[{"item-type":"checksum","checksum-type":"sha512"}]})");
    cancel_after(state, std::chrono::milliseconds(30), command, [&] { return std::make_shared<MVItemsSet>(path); });
}

void cancel_reading(benchmark::State& state)
{
    const BenchFiles files(100'000);
    const auto command = command_of(R"({"name":"n","separator":"\n","addFilesFromFolders":true,"fileParts":[]})");
    cancel_after(state, std::chrono::milliseconds(state.range(0)), command,
                 [&] { return std::make_shared<MVItemsSet>(files.folder()); });
}

/// A million items: one folder's files selected again and again, so that only the list is long.
std::shared_ptr<MVItemsSet> million_items(const BenchFiles& files)
{
    auto selection = std::make_shared<MVItemsSet>();
    while (selection->items().size() < 1'000'000)
        for (const std::u16string& path : files.paths())
            selection->add_path(path);
    return selection;
}

void cancel_assembling(benchmark::State& state)
{
    const BenchFiles files(1'000);
    const auto selection = million_items(files);
    cancel_after(state, std::chrono::milliseconds(100), command_of(names), [&] { return selection; });
}

void cancel_sorting(benchmark::State& state)
{
    const BenchFiles files(1'000);
    const auto selection = million_items(files);
    auto command = command_of(names);
    command.set_sort_order(Sort::NameRev);
    cancel_after(state, std::chrono::milliseconds(100), command, [&] { return selection; });
}

}

BENCHMARK(cancel_hashing)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(cancel_reading)->Arg(20)->Arg(80)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(cancel_assembling)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(cancel_sorting)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
