#pragma once

#include "platform/host/properties/subject_file.h"

namespace platform {

/// The Exif data of a JPEG, TIFF (camera raw files too), PNG, WebP or HEIF file: "Exif", two zero bytes, then a TIFF
/// structure, 64 KiB at the most. Empty when the file has none.
std::string exif_block(SubjectFile& file);

}
