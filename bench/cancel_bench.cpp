#include "bench_files.h"

#include "engine/commands/checksum_pool.h"
#include "engine/commands/folder_walk.h"
#include "engine/commands/vellumark_command.h"
#include "engine/items/cancel_point.h"
#include "engine/items/mv_item_folder.h"
#include "engine/items/mv_items_set.h"
#include "engine/parts/item_progress_sink.h"
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
#include <random>
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

class FlagSink final : public ItemProgressSink
{
public:
    bool is_cancelled() override { return cancelled; }

    void report_item(std::u16string_view) override {}

    void report_status(std::u16string_view) override {}

    std::atomic<bool> cancelled = false;
};

using Items = std::vector<const MVItemBase*>;

/// The same for one step of a run, on a million items that it has not seen before.
void cancel_step(benchmark::State& state, const MVItemInfo& info,
                 const std::function<void(const Items&, ItemProgressSink&)>& step)
{
    const BenchFiles files(0);
    files.write("small", "content");
    const MVItemsSet parent(files.folder());
    double longest = 0;
    while (state.KeepRunning()) {
        std::vector<std::shared_ptr<MVItemBase>> owned;
        Items items;
        while (items.size() < 1'000'000)
            items.push_back(
                owned.emplace_back(make_item(info, static_cast<MVItemFolder*>(parent.items()[0].get()))).get());
        std::ranges::shuffle(items, std::mt19937(1));
        FlagSink sink;
        Clock::time_point end;
        std::thread run([&] {
            try {
                step(items, sink);
            } catch (const Cancelled&) {
            }
            end = Clock::now();
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(state.range(0)));
        const auto begin = Clock::now();
        sink.cancelled = true;
        run.join();
        if (end < begin)
            throw std::runtime_error("the step was over before it could be cancelled");
        const double seconds = std::chrono::duration<double>(end - begin).count();
        state.SetIterationTime(seconds);
        longest = std::max(longest, seconds * 1e3);
    }
    state.counters["longest_ms"] = longest;
}

void cancel_checksums(benchmark::State& state)
{
    cancel_step(state, {{}, u"small"}, [](const Items& items, ItemProgressSink& sink) {
        precache_checksums(items, {ChecksumType::Crc32, ChecksumType::XxHash64}, false, sink);
    });
}

/// Folders that have yet to be read, and don't exist.
void cancel_folder_list(benchmark::State& state)
{
    cancel_step(state, {{.is_folder = true}, u"missing"},
                [](const Items& items, ItemProgressSink& sink) { precache_folders(items, sink); });
}

}

BENCHMARK(cancel_hashing)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(cancel_reading)->Arg(20)->Arg(80)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(cancel_checksums)
    ->Arg(20)
    ->Arg(100)
    ->Arg(300)
    ->Arg(2'000)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(cancel_folder_list)
    ->Arg(10)
    ->Arg(50)
    ->Arg(100)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(cancel_assembling)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(cancel_sorting)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
