#include "store/commands_file.h"

#include "platform/files.h"
#include "store/commands_json.h"
#include "store/mv_config.h"

namespace {

StoredCommands from_text(const std::u16string& path, std::string_view text)
{
    const boost::json::value value = parse_json_file(path, text);
    const boost::json::object* file = value.if_object();
    if (!file)
        throw JsonFileReaderException(path, JsonFileStatus::InvalidData, "Top-level JSON value is not an object.");
    return commands_json::from_json(*file);
}

/// Whether the file says something that the commands which came in its place don't.
bool is_lost(const StoredCommands& file, const StoredCommands& instead)
{
    return !file.library.empty() || file.presets != instead.presets;
}

}

namespace commands_file {

Loaded read_user_file()
{
    const std::u16string path = MVConfig::get_global().path(FileKind::UserCommands);
    Loaded loaded;
    if (!platform::exists(path))
        return loaded;
    loaded.text = read_text_file(path);
    loaded.commands = from_text(path, *loaded.text);
    return loaded;
}

std::string read_user_text()
{
    return read_text_file(MVConfig::get_global().path(FileKind::UserCommands));
}

Loaded load_user_file()
{
    Loaded loaded = read_user_file();
    if (!loaded.commands.menu.empty())
        return loaded;
    StoredCommands defaults = load_defaults();
    if (loaded.text && is_lost(loaded.commands, defaults))
        loaded.old = OldFile::Kept;
    loaded.commands = std::move(defaults);
    return loaded;
}

StoredCommands load()
{
    return load_user_file().commands;
}

StoredCommands load_defaults()
{
    return read(MVConfig::get_global().path(FileKind::DefaultCommands));
}

StoredCommands read(std::u16string_view path, JsonSource source)
{
    // Default presets are asked for later, but without a configuration nothing is read at all.
    MVConfig::get_global();
    if (!platform::exists(path))
        throw JsonFileReaderException(std::u16string(path), JsonFileStatus::MissingFile);
    return from_text(std::u16string(path), read_text_file(path, source));
}

}
