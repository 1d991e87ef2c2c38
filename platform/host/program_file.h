#pragma once

#include <string>

namespace platform {

/// Host path of the folder in which the running program's file lies, without a trailing slash. Throws
/// std::runtime_error when the system doesn't tell.
std::string host_program_folder();

}
