#include "bench_files.h"

#include "engine/commands/vellumark_command.h"
#include "platform/known_folders.h"
#include "platform/paths.h"
#include "store/commands_file.h"
#include "store/mv_config.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

/// A commands file with so many commands, the default ones again and again.
std::string multiplied_defaults(std::size_t commands)
{
    const StoredCommands defaults = commands_file::load_defaults();
    boost::json::array menu;
    while (menu.size() < commands)
        for (const CommandList* list : {&defaults.menu, &defaults.library})
            for (const auto& command : *list)
                if (menu.size() < commands)
                    menu.push_back(command->to_json());
    return boost::json::serialize(boost::json::object{{"menuCommands", std::move(menu)},
                                                      {"commandsLibrary", boost::json::array{}},
                                                      {"extensionsPresets", boost::json::array{}}});
}

void read_commands_file(benchmark::State& state)
{
    MVConfigLive::install(platform::program_folder());
    const BenchFiles files(0);
    const std::string content = multiplied_defaults(static_cast<std::size_t>(state.range(0)));
    const std::u16string path = files.write("commands.json", content);
    std::size_t commands = 0;
    while (state.KeepRunning())
        commands = commands_file::read(path).menu.size();
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(commands));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(content.size()));
}

/// The whole of a save, the way to the disk included.
void save_commands_file(benchmark::State& state)
{
    const BenchFiles files(0);
    setenv("XDG_CONFIG_HOME", platform::to_host_path(files.folder()).c_str(), 1);
    MVConfigLive::install(platform::program_folder());
    const std::string content = multiplied_defaults(static_cast<std::size_t>(state.range(0)));
    const StoredCommands stored = commands_file::read(files.write("commands.json", content));
    while (state.KeepRunning())
        commands_saving::write({.text = commands_saving::text_of(stored)});
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(content.size()));
}

}

BENCHMARK(read_commands_file)->Arg(20)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(save_commands_file)->Arg(20)->Arg(10'000)->Unit(benchmark::kMillisecond);
