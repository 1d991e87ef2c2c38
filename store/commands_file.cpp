#include "store/commands_file.h"

#include "engine/commands/vellumark_command.h"
#include "engine/text/utf.h"
#include "platform/files.h"
#include "store/command_factory.h"
#include "store/mv_config.h"

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

std::vector<ExtensionsPreset> load_default_presets()
{
    std::vector<ExtensionsPreset> presets;
    const std::u16string path = MVConfig::get_global().path(FileKind::DefaultPresets);
    if (!platform::exists(path))
        return presets;
    const json::value value = read_json_file(path);
    if (const json::array* array = value.if_array())
        read_presets(*array, presets);
    return presets;
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

void update_from_preset(VellumarkCommand& command, const std::vector<ExtensionsPreset>& presets)
{
    const auto found = std::ranges::find(presets, command.file_filter_preset_uuid(), &ExtensionsPreset::uuid);
    if (found == presets.end()) {
        command.set_file_filter_preset_uuid({});
        return;
    }
    ItemFilter filter = command.file_filter();
    filter.set_filter_pattern(found->extensions());
    command.set_file_filter(std::move(filter));
}

VellumarkCommand* follower_of_preset(MVCommandBase& entry)
{
    auto* command = dynamic_cast<VellumarkCommand*>(&entry);
    return command && !command->file_filter_preset_uuid().empty() ? command : nullptr;
}

void update_from_presets(const CommandList& list, const std::vector<ExtensionsPreset>& presets)
{
    for (const auto& entry : list)
        if (VellumarkCommand* command = follower_of_preset(*entry))
            update_from_preset(*command, presets);
}

/// The list as it will be, with clones in the place of the commands that change.
CommandList updated_from_presets(CommandList list, const std::vector<ExtensionsPreset>& presets)
{
    for (auto& entry : list)
        if (follower_of_preset(*entry))
            entry = entry->clone();
    update_from_presets(list, presets);
    return list;
}

json::array list_to_json(const CommandList& list)
{
    json::array array;
    for (const auto& command : list)
        array.push_back(command->to_json());
    return array;
}

void write_in_one_step(std::u16string_view path, std::string_view content)
{
    switch (platform::replace_content(path, content)) {
    case platform::Replacement::Done: return;
    case platform::Replacement::NotWritten: throw std::runtime_error("Failed to write commands to temporary file.");
    case platform::Replacement::NotReplaced: throw std::runtime_error("Failed to replace commands file.");
    }
}

/// Another name for the file, which it has for good once `keep` was called.
class OtherName
{
public:
    /// Has none when there is no file.
    explicit OtherName(const std::u16string& path)
    {
        const auto file = platform::file_attributes(path);
        if (!file || file->is_folder)
            return;
        std::u16string name = path + u".broken";
        for (int number = 2; platform::exists(name); ++number)
            name = path + u".broken" + to_utf16(std::to_string(number));
        if (!platform::keep_as(path, name))
            throw std::runtime_error("Failed to keep the old commands file.");
        name_ = std::move(name);
    }

    ~OtherName()
    {
        if (!name_.empty())
            platform::remove_file(name_);
    }

    OtherName(const OtherName&) = delete;
    OtherName& operator=(const OtherName&) = delete;

    void keep() { name_.clear(); }

private:
    std::u16string name_;
};

void replace_file(const std::u16string& path, std::string_view content, commands_file::OldFile old)
{
    if (old == commands_file::OldFile::Replaced) {
        write_in_one_step(path, content);
        return;
    }
    OtherName other(path);
    write_in_one_step(path, content);
    other.keep();
}

}

namespace commands_file {

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

json::object to_json(const CommandList& menu, const CommandList& library,
                     const std::vector<ExtensionsPreset>& presets)
{
    return {{menu_key, menu_to_json(menu)},
            {library_key, list_to_json(library)},
            {presets_key, presets_to_json(presets)}};
}

StoredCommands read(std::u16string_view path, JsonSource source)
{
    // Default presets are asked for later, but without a configuration nothing is read at all.
    MVConfig::get_global();
    if (!platform::exists(path))
        throw JsonFileReaderException(std::u16string(path), JsonFileStatus::MissingFile);
    const json::value value = read_json_file(path, source);
    const json::object* file = value.if_object();
    if (!file)
        throw JsonFileReaderException(std::u16string(path), JsonFileStatus::InvalidData,
                                      "Top-level JSON value is not an object.");
    return from_json(*file);
}

StoredCommands load_defaults()
{
    return read(MVConfig::get_global().path(FileKind::DefaultCommands));
}

StoredCommands load()
{
    const std::u16string path = MVConfig::get_global().path(FileKind::UserCommands);
    StoredCommands commands;
    if (platform::exists(path))
        commands = read(path);
    return commands.menu.empty() ? load_defaults() : commands;
}

void save(const CommandList& menu, const CommandList& library, const std::vector<ExtensionsPreset>& presets,
          OldFile old)
{
    const std::u16string path = MVConfig::get_global().path(FileKind::UserCommands);
    const std::string content = json::serialize(
        to_json(updated_from_presets(menu, presets), updated_from_presets(library, presets), presets));
    create_parent_directories(path);
    replace_file(path, content, old);
    update_from_presets(menu, presets);
    update_from_presets(library, presets);
}

}
