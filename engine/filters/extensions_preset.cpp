#include "engine/filters/extensions_preset.h"

#include "engine/text/json_access.h"
#include "engine/text/letters.h"
#include "engine/text/utf.h"
#include "platform/random_id.h"

#include <array>
#include <cstdio>

namespace json = boost::json;

ExtensionsPreset::ExtensionsPreset(const json::object& object)
    : uuid(json_access::required_text(object, "uuid")), name(json_access::required_text(object, "name")),
      extensions_(lower_cased(json_access::required_text(object, "extensions")))
{}

json::object ExtensionsPreset::to_json() const
{
    return {{"uuid", to_utf8(uuid)}, {"name", to_utf8(name)}, {"extensions", to_utf8(extensions_)}};
}

void ExtensionsPreset::set_extensions(std::u16string_view extensions)
{
    extensions_ = lower_cased(extensions);
}

void ExtensionsPreset::make_new_uuid()
{
    const platform::RandomId id = platform::make_random_id();
    const auto& tail = id.data4;
    std::array<char, 37> text{};
    std::snprintf(text.data(), text.size(), "%08x-%04x-%04x-%02x%02x-%02x%02x%02x%02x%02x%02x", id.data1, id.data2,
                  id.data3, tail[0], tail[1], tail[2], tail[3], tail[4], tail[5], tail[6], tail[7]);
    uuid = to_utf16(text.data());
}

void read_presets(const json::array& array, std::vector<ExtensionsPreset>& presets)
{
    presets.clear();
    for (const json::value& element : array)
        if (const json::object* object = element.if_object())
            presets.emplace_back(*object);
}

json::array presets_to_json(const std::vector<ExtensionsPreset>& presets)
{
    json::array array;
    for (const ExtensionsPreset& preset : presets)
        array.push_back(preset.to_json());
    return array;
}
