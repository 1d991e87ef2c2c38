#include "bench_files.h"

#include "engine/commands/vellumark_command.h"
#include "platform/known_folders.h"
#include "store/commands_file.h"
#include "store/mv_config.h"

#include <benchmark/benchmark.h>

namespace {

/// A commands file in which each default command stands many times.
std::string multiplied_defaults(int times)
{
    const StoredCommands defaults = commands_file::load_defaults();
    boost::json::array menu;
    for (int round = 0; round < times; ++round)
        for (const CommandList* list : {&defaults.menu, &defaults.library})
            for (const auto& command : *list)
                menu.push_back(command->to_json());
    return boost::json::serialize(boost::json::object{{"menuCommands", std::move(menu)},
                                                      {"commandsLibrary", boost::json::array{}},
                                                      {"extensionsPresets", boost::json::array{}}});
}

void read_commands_file(benchmark::State& state)
{
    MVConfigLive::install(platform::program_folder());
    const BenchFiles files(0);
    const std::string content = multiplied_defaults(static_cast<int>(state.range(0)));
    const std::u16string path = files.write("commands.json", content);
    std::size_t commands = 0;
    while (state.KeepRunning())
        commands = commands_file::read(path).menu.size();
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(commands));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(content.size()));
}

}

BENCHMARK(read_commands_file)->Arg(1)->Arg(100)->Unit(benchmark::kMicrosecond);
