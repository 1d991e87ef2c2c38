#pragma once

#include "platform/host/properties/property_bag.h"
#include "platform/host/properties/subject_file.h"

namespace platform {

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

}
