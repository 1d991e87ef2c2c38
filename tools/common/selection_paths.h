#pragma once

#include "common/command_line.h"

#include <functional>
#include <string>
#include <string_view>

/// Calls `visit` for each path that the options name: first the arguments, then the entries of the list file, whose
/// last one need not be ended. Throws std::runtime_error when the list can't be read.
void for_each_path(const CommonOptions& options, const std::function<void(std::string_view path)>& visit);

/// Drive or server form of a path: a host path is made absolute and normalised by text, a path in drive or server
/// form stays as it is. Throws std::runtime_error for a relative path when the current folder is gone.
std::u16string to_system_path(std::string_view path);

/// Why the attributes of a path in drive or server form can't be read, in words.
std::string reason_of_refusal(std::u16string_view path);
