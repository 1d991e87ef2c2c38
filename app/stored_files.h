#pragma once

#include "store/commands_file.h"
#include "store/last_command.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

/// How the window comes by its stored files. Each is called on any thread, throws what the function does that stands
/// in its place here, and may take for ever.
struct StoredFiles {
    std::function<commands_file::Loaded()> load = commands_file::load_user_file;
    std::function<commands_file::Loaded()> read = commands_file::read_user_file;
    std::function<std::string()> read_text = commands_file::read_user_text;
    std::function<bool(const CommandsSaving&)> save = commands_saving::write;
    std::function<std::shared_ptr<VellumarkCommand>()> read_last = read_last_command;
    /// What is read by then shows with the window.
    std::chrono::milliseconds patience_at_start{250};
};
