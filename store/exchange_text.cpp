#include "store/exchange_text.h"

#include "store/commands_json.h"

#include <algorithm>

namespace json = boost::json;

namespace {

/// From the first opening brace or bracket to the last one that closes its kind; empty without either.
std::string_view json_within(std::string_view text)
{
    const std::size_t begin = text.find_first_of("{[");
    if (begin == text.npos)
        return {};
    const std::size_t end = text.rfind(text[begin] == '{' ? '}' : ']');
    if (end == text.npos || end < begin)
        return {};
    return text.substr(begin, end - begin + 1);
}

}

namespace exchange_text {

std::string from_commands(const CommandList& commands)
{
    return json::serialize(json::object{{commands_json::menu_key, commands_json::menu_to_json(commands)}});
}

std::optional<CommandList> to_commands(std::string_view text)
{
    json::error_code error;
    const json::value value = json::parse(json_within(text), error);
    const json::object* object = value.if_object();
    if (error || !object)
        return {};
    try {
        return commands_json::menu_from_json(*object);
    } catch (const std::exception&) {
        // What the user has on the clipboard is mostly something else: no reason is asked for.
        return {};
    }
}

void merge(CommandList& list, const CommandList& imported, Place place)
{
    std::erase_if(list, [&](const auto& old) {
        return place == Place::Replace ||
               std::ranges::any_of(imported, [&](const auto& command) { return old->equals(*command); });
    });
    list.insert(place == Place::Start ? list.begin() : list.end(), imported.begin(), imported.end());
}

}
