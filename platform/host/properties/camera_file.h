#pragma once

#include "platform/host/properties/subject_file.h"

namespace platform {

/// True for camera raw files and for HEIF: nobody tells their dimensions but the camera. By their TIFF header
/// a thumbnail would be taken for the picture.
bool is_camera_file(SubjectFile& file);

}
