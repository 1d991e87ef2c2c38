#include "store/json_file_reader.h"

#include "engine/text/utf.h"
#include "platform/files.h"

namespace {

const char* words_of(JsonFileStatus status)
{
    switch (status) {
    case JsonFileStatus::MissingFile: return "Missing File";
    case JsonFileStatus::ReadError: return "Read Error";
    case JsonFileStatus::InvalidJson: return "Invalid JSON";
    case JsonFileStatus::InvalidData: return "Invalid Data";
    }
    return "Unknown Status";
}

}

JsonFileReaderException::JsonFileReaderException(std::u16string path, JsonFileStatus status, std::string detail)
    : path_(std::move(path)), status_(status), detail_(std::move(detail)),
      message_(to_utf8(path_) + ": " + words_of(status))
{
    if (!detail_.empty())
        message_ += " (" + detail_ + ")";
}

std::string read_text_file(std::u16string_view path, JsonSource source)
{
    std::string reason;
    auto content = source == JsonSource::StoredFile ? platform::read_file(path, reason)
                                                    : platform::read_file_or_pipe(path, reason);
    if (!content)
        throw JsonFileReaderException(std::u16string(path), JsonFileStatus::ReadError, reason);
    return std::move(*content);
}

boost::json::value parse_json_file(std::u16string_view path, std::string_view text)
{
    boost::json::error_code error;
    // Given back as a whole: a file of many small values would otherwise take long to take apart.
    boost::json::value value =
        boost::json::parse(text, error, boost::json::make_shared_resource<boost::json::monotonic_resource>());
    if (error)
        throw JsonFileReaderException(std::u16string(path), JsonFileStatus::InvalidJson, error.message());
    return value;
}

boost::json::value read_json_file(std::u16string_view path, JsonSource source)
{
    return parse_json_file(path, read_text_file(path, source));
}

void create_parent_directories(std::u16string_view path)
{
    platform::create_directories(path.substr(0, path.rfind(u'\\') + 1));
}
