#include "engine/text/utf.h"
#include "fuzz_input.h"
#include "platform/properties.h"
#include "support/temp_folder.h"

#include <cmath>
#include <iterator>

using platform::FileProperties;
using platform::PropertyType;
using platform::PropertyValue;

namespace {

/// An input's first byte chooses one. New ones go to the end, since the corpus means them by their places.
constexpr std::string_view extensions[] = {"",     ".jpg", ".png",  ".tif",  ".nef", ".heic", ".webp",
                                           ".gif", ".bmp", ".mp3",  ".flac", ".ogg", ".opus", ".spx",
                                           ".m4a", ".wma", ".wav",  ".aif",  ".ape", ".mpc",  ".wv",
                                           ".tta", ".pdf", ".docx", ".odt",  ".ico", ".ppm",  ".tga"};

std::string file_name(unsigned byte)
{
    return "file" + std::string(extensions[byte % std::size(extensions)]);
}

bool has_declared_type(const PropertyValue& value, PropertyType type)
{
    switch (type) {
    case PropertyType::Bool: return std::holds_alternative<bool>(value);
    case PropertyType::FileTime: return std::holds_alternative<platform::FileTimeValue>(value);
    case PropertyType::Lpwstr: return std::holds_alternative<std::u16string>(value);
    case PropertyType::StringVector: return std::holds_alternative<std::vector<std::u16string>>(value);
    default:
        return std::holds_alternative<std::int64_t>(value) || std::holds_alternative<std::uint64_t>(value) ||
               std::holds_alternative<double>(value);
    }
}

void check_text(const std::optional<std::u16string>& text)
{
    require(text && text->find(u'\0') == text->npos && to_utf16(to_utf8(*text)) == *text, "texts are well-formed");
}

void check_value(const PropertyValue& value)
{
    check_text(platform::to_text(value));
    const auto number = platform::to_double(value);
    require(!number || std::isfinite(*number), "numbers are finite");
    platform::to_int64(value);
    platform::to_bool(value);
    platform::to_local_file_time(value);
}

}

/// Films are left out: what reads them does so in a process of its own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TempFolder folder;
    FuzzInput input(data, size);
    const std::string name = file_name(input.byte());
    FileProperties file(folder.write(name, input.rest()));
    for (const std::u16string& property : file.names()) {
        const auto value = file.value(property);
        const auto shown = file.display_text(property);
        require(value.has_value() == shown.has_value(), "what has a value can be shown");
        if (!value)
            continue;
        require(has_declared_type(*value, platform::property_type(property)), "values have the declared type");
        check_value(*value);
        check_text(shown);
    }
    return 0;
}
