#pragma once

#include "platform/host/properties/property_bag.h"
#include "platform/host/properties/subject_file.h"

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

/// Puts all that one library knows of the file into the bag; no exception leaves it. True when the library knew the
/// file's format: what it didn't find then is not there, and no other library is asked.
bool read_path(SubjectFile& file, PropertyBag& bag);
bool read_file_system(SubjectFile& file, PropertyBag& bag);
bool read_type(SubjectFile& file, PropertyBag& bag);
bool read_image(SubjectFile& file, PropertyBag& bag);
bool read_exif(SubjectFile& file, PropertyBag& bag);
bool read_tags(SubjectFile& file, PropertyBag& bag);
bool read_media(SubjectFile& file, PropertyBag& bag);
bool read_pdf(SubjectFile& file, PropertyBag& bag);
bool read_office(SubjectFile& file, PropertyBag& bag);

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
