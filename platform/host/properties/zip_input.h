#pragma once

#include "platform/host/properties/subject_file.h"

struct zip_source;

namespace platform {

/// The file as libzip takes it, read within the file's allowance. Null when there is no memory. Whoever opens an
/// archive of it owns it then; `file` must outlive the archive.
zip_source* make_zip_input(SubjectFile& file);

}
