#pragma once

#include "platform/host/properties/subject_file.h"

namespace platform {

/// The TIFF structure with the Exif data of a HEIF file (HEIC, AVIF), 64 KiB at the most. Empty when it has none.
std::string heif_exif(SubjectFile& file);

}
