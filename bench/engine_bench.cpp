#include "bench_files.h"

#include "engine/checksums/crc32.h"
#include "engine/checksums/xxhash64.h"
#include "engine/commands/vellumark_command.h"
#include "engine/items/mv_items_set.h"
#include "engine/parts/item_progress_sink.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

class SilentSink final : public ItemProgressSink
{
public:
    bool is_cancelled() override { return false; }

    void report_item(std::u16string_view) override {}

    void report_status(std::u16string_view) override {}
};

struct Template {
    const char* title;
    const char* sort_order;
    const char* parts;
};

constexpr Template templates[]{
    {"path, size and date", "as-selected",
     R"([{"item-type": "path", "path-type": "path-no-drive", "limit-num-parents": false, "separator-text": "/"},
         {"item-type": "size", "size-format": "auto", "add-thousands-separator": true},
         {"item-type": "date", "dateType": "modified", "dateFormat": "iso-date-time", "addLeadingZeros": false}])"},
    {"date by locale", "as-selected",
     R"([{"item-type": "date", "dateType": "modified", "dateFormat": "long-date-time", "addLeadingZeros": false}])"},
    {"name in title case, sorted", "name-rev",
     R"([{"item-type": "name", "name-type": "full-name", "case-type": "TitleCase"}])"},
};

VellumarkCommand make_command(const Template& of)
{
    return VellumarkCommand(boost::json::object{{"name", of.title},
                                                {"separator", "\n"},
                                                {"sortOrder", of.sort_order},
                                                {"fileParts", boost::json::parse(of.parts)}});
}

/// Selected files, whose attributes are known: no part of this looks at the disk.
void generate_text(benchmark::State& state)
{
    const Template& chosen = templates[state.range(0)];
    const BenchFiles files(10'000);
    const MVItemsSet selection(files.paths());
    const VellumarkCommand command = make_command(chosen);
    SilentSink sink;
    std::u16string text;
    while (state.KeepRunning())
        command.generate_text(text, selection, sink);
    state.SetLabel(chosen.title);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(files.paths().size()));
}

/// A selection of many paths, as `--paths-from` makes it: the time a path must not grow with their number.
void select_paths(benchmark::State& state)
{
    const BenchFiles files(static_cast<std::size_t>(state.range(0)));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(MVItemsSet(files.paths()).items().size());
    state.SetComplexityN(state.range(0));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

template <typename Hash>
void hash_in_memory(benchmark::State& state)
{
    const std::vector<std::byte> bytes(65'536, std::byte{0x5A});
    Hash hash;
    while (state.KeepRunning()) {
        hash.update(bytes);
        benchmark::ClobberMemory();
    }
    benchmark::DoNotOptimize(hash.digest());
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

}

BENCHMARK(generate_text)->DenseRange(0, std::ssize(templates) - 1)->Unit(benchmark::kMillisecond);
BENCHMARK(select_paths)->RangeMultiplier(4)->Range(1 << 9, 1 << 15)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(hash_in_memory<Crc32>);
BENCHMARK(hash_in_memory<XxHash64>);
