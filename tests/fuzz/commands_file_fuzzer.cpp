#include "fuzz_input.h"
#include "store/commands_json.h"
#include "store/mv_config.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    MVConfigLive::install(u"C:\\nowhere");
    return 0;
}

/// What was read is written, read again and written the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto value = FuzzInput(data, size).json();
    if (!value || !value->is_object())
        return 0;
    const auto first = accepted([&] { return commands_json::from_json(value->get_object()); });
    if (!first)
        return 0;
    const auto written = commands_json::to_json(*first);
    const StoredCommands second = commands_json::from_json(written);
    require(commands_json::to_json(second) == written, "written the same");
    require(second.presets == first->presets, "same presets");
    for (const auto& command : first->menu)
        require(command->clone()->equals(*command), "a copy is equal");
    return 0;
}
