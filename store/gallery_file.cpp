#include "store/gallery_file.h"

#include "engine/text/json_access.h"
#include "platform/files.h"
#include "store/json_file_reader.h"
#include "store/mv_config.h"

#include <stdexcept>

namespace json = boost::json;

namespace {

constexpr std::string_view commands_key = "galleryCommands";

const json::array& commands_of(const json::object& file)
{
    const json::value* commands = file.if_contains(commands_key);
    if (!commands)
        throw std::runtime_error("JSON value missing: " + std::string(commands_key));
    const json::array* array = commands->if_array();
    if (!array)
        throw std::runtime_error("JSON value not an array: " + std::string(commands_key));
    return *array;
}

GalleryEntry read_entry(const json::value& element)
{
    const json::object* object = element.if_object();
    if (!object)
        throw std::runtime_error("Element in JSON array '" + std::string(commands_key) + "' is not an object");
    return {.command = std::make_shared<VellumarkCommand>(*object),
            .description = json_access::optional_text(*object, "description"),
            .category = json_access::optional_text(*object, "category")};
}

}

void append_gallery_entries(const json::object& file, std::vector<GalleryEntry>& entries)
{
    for (const json::value& element : commands_of(file))
        entries.push_back(read_entry(element));
}

void read_gallery(std::vector<GalleryEntry>& entries)
{
    entries.clear();
    const std::u16string path = MVConfig::get_global().path(FileKind::Gallery);
    if (!platform::exists(path))
        throw JsonFileReaderException(path, JsonFileStatus::MissingFile);
    const json::value value = read_json_file(path);
    const json::object* file = value.if_object();
    if (!file)
        throw JsonFileReaderException(path, JsonFileStatus::InvalidData, "Root element is not a JSON object");
    append_gallery_entries(*file, entries);
}
