#include "engine/filters/extensions_preset.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto value = FuzzInput(data, size).json();
    if (!value || !value->is_array())
        return 0;
    const auto read = [](const boost::json::array& array) {
        std::vector<ExtensionsPreset> presets;
        read_presets(array, presets);
        return presets;
    };
    if (const auto presets = accepted([&] { return read(value->get_array()); }))
        require(read(presets_to_json(*presets)) == *presets, "read back equal");
    return 0;
}
