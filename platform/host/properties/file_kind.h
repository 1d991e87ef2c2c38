#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

/// Which metadata libraries a file's type calls for. Folders, and files that no library reads, are `Other`.
enum class FileKind : std::uint8_t { Other, Image, Audio, Video, Pdf, Office };

/// Those that a reader has to know.
enum class FileFormat : std::uint8_t {
    Other,
    Tiff,
    Tga,
    Mpeg,
    Flac,
    Ogg,
    Mp4,
    Asf,
    Wav,
    Aiff,
    Ape,
    Musepack,
    WavPack,
    TrueAudio
};

/// What files of an extension are.
struct ExtensionRow {
    FileKind kind;
    FileFormat format;
    /// Lower case, each with its dot and a blank behind it.
    std::string_view extensions;
    /// Files of other kinds have the extension as well: the content tells, and where it doesn't, the kind holds.
    bool is_shared = false;
};

/// `extension` with its dot, in any case. Null for one that tells nothing.
const ExtensionRow* find_extension(std::u16string_view extension);

/// By the first bytes of the content.
FileKind kind_by_content(std::string_view head);

}
