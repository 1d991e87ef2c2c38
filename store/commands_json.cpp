#include "store/commands_json.h"

#include "store/command_factory.h"
#include "store/default_presets.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace json = boost::json;

namespace {

constexpr std::string_view library_key = "commandsLibrary", presets_key = "extensionsPresets";

CommandList read_list(const json::array& array)
{
    CommandList list;
    for (const json::value& element : array)
        if (const json::object* object = element.if_object())
            if (auto command = command_from_json(*object))
                list.push_back(std::move(command));
    return list;
}

std::vector<ExtensionsPreset> read_presets_of(const json::object& file)
{
    const json::value* value = file.if_contains(presets_key);
    if (!value)
        return load_default_presets();
    std::vector<ExtensionsPreset> presets;
    if (const json::array* array = value->if_array())
        read_presets(*array, presets);
    return presets;
}

/// Files from before there was a library kept everything in one list and hid what the menu doesn't show. Built-in
/// commands have no place in a library.
void move_hidden_commands(StoredCommands& commands)
{
    const auto belongs_in_menu = [](const auto& command) {
        return command->show_in_menu() || command->type() != CommandType::Vellumark;
    };
    const auto hidden = std::stable_partition(commands.menu.begin(), commands.menu.end(), belongs_in_menu);
    commands.library.assign(hidden, commands.menu.end());
    commands.menu.erase(hidden, commands.menu.end());
}

void set_shown(const CommandList& list, bool shown)
{
    for (const auto& command : list)
        command->set_show_in_menu(shown);
}

json::array list_to_json(const CommandList& list)
{
    json::array array;
    for (const auto& command : list)
        array.push_back(command->to_json());
    return array;
}

}

namespace commands_json {

CommandList menu_from_json(const json::object& file)
{
    const json::value* menu = file.if_contains(menu_key);
    if (!menu)
        throw std::runtime_error("JSON value missing: " + std::string(menu_key));
    if (!menu->is_array())
        throw std::runtime_error("JSON value not an array: " + std::string(menu_key));
    return read_list(menu->get_array());
}

json::array menu_to_json(const CommandList& menu)
{
    json::array array = list_to_json(menu);
    for (json::value& element : array)
        element.as_object()["showInMenu"] = true;
    return array;
}

StoredCommands from_json(const json::object& file)
{
    StoredCommands commands;
    commands.menu = menu_from_json(file);
    commands.presets = read_presets_of(file);
    if (const json::value* library = file.if_contains(library_key)) {
        if (const json::array* array = library->if_array())
            commands.library = read_list(*array);
        set_shown(commands.menu, true);
        set_shown(commands.library, false);
    } else {
        move_hidden_commands(commands);
    }
    return commands;
}

json::object to_json(const StoredCommands& commands)
{
    return {{menu_key, menu_to_json(commands.menu)},
            {library_key, list_to_json(commands.library)},
            {presets_key, presets_to_json(commands.presets)}};
}

}
