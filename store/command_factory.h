#pragma once

#include "engine/commands/mv_command_base.h"

#include <memory>

/// A stored or imported command of any kind. Null for an unknown "commandType", which the callers skip. Throws what
/// the command's reader throws, and std::runtime_error "Missing key in JSON: commandType".
std::shared_ptr<MVCommandBase> command_from_json(const boost::json::object& json);
