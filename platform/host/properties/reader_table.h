#pragma once

#include "platform/host/properties/readers.h"

#include <span>

namespace platform {

/// Where properties come from; flags, so that a property can name several.
enum Reader : unsigned {
    FromPath = 1,
    FromFileSystem = 2,
    FromType = 4,
    FromImage = 8,
    FromExif = 16,
    FromTags = 32,
    FromMedia = 64,
    FromPdf = 128,
    FromOffice = 256,
    FromFilm = 512 ///< MediaInfo too, for what only films have
};

struct ReaderRow {
    /// Set of `Reader`.
    unsigned readers;
    bool (*read)(SubjectFile&, PropertyBag&);
};

/// The readers of this build, in the order in which they are asked.
std::span<const ReaderRow> built_in_readers();

/// The readers that a kind of file calls for, built in or not.
unsigned readers_of(FileKind kind);

}
