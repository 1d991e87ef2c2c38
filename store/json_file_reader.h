#pragma once

#include <boost/json.hpp>

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

enum class JsonFileStatus : std::uint32_t { MissingFile, ReadError, InvalidJson, InvalidData };

/// A stored file that can't be used.
class JsonFileReaderException : public std::exception
{
public:
    /// `detail` may be empty.
    JsonFileReaderException(std::u16string path, JsonFileStatus status, std::string detail = {});

    const std::u16string& path() const { return path_; }

    JsonFileStatus status() const { return status_; }

    const std::string& detail() const { return detail_; }

    /// The path in UTF-8, ": ", the status in words, and the detail in brackets where there is one.
    const char* what() const noexcept override { return message_.c_str(); }

private:
    std::u16string path_;
    JsonFileStatus status_;
    std::string detail_;
    std::string message_;
};

/// What may lie at a path.
enum class JsonSource : std::uint32_t {
    StoredFile, ///< a regular file; anything else is a read error, so that a fifo there stops no program
    AnyFile     ///< whatever the user named, pipes included
};

/// A file's text. Throws JsonFileReaderException with status ReadError and the reason.
std::string read_text_file(std::u16string_view path, JsonSource source = JsonSource::StoredFile);

/// The JSON value that a file's text holds. Throws JsonFileReaderException with status InvalidJson and the parser's
/// reason.
boost::json::value parse_json_file(std::u16string_view path, std::string_view text);

/// Both at once.
boost::json::value read_json_file(std::u16string_view path, JsonSource source = JsonSource::StoredFile);

/// Creates the folders that the file at `path` is to lie in. Throws boost::filesystem::filesystem_error with the
/// operation name "create_directories".
void create_parent_directories(std::u16string_view path);
