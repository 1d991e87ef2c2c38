#include "store/default_presets.h"

#include "platform/files.h"
#include "store/json_file_reader.h"
#include "store/mv_config.h"

std::vector<ExtensionsPreset> load_default_presets()
{
    std::vector<ExtensionsPreset> presets;
    const std::u16string path = MVConfig::get_global().path(FileKind::DefaultPresets);
    if (!platform::exists(path))
        return presets;
    const boost::json::value value = read_json_file(path);
    if (const boost::json::array* array = value.if_array())
        read_presets(*array, presets);
    return presets;
}
