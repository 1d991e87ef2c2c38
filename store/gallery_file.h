#pragma once

#include "engine/commands/vellumark_command.h"

#include <memory>
#include <string>
#include <vector>

/// A ready-made command of the gallery.
struct GalleryEntry {
    std::shared_ptr<VellumarkCommand> command;
    std::u16string description; ///< one sentence; may be empty
    std::u16string category;    ///< heading that the command stands under; may be empty
};

/// Replaces `entries` by those of the gallery that lies beside the program, in its order. Unlike a commands file it
/// is the product's own, so nothing in it is skipped: throws JsonFileReaderException for a file that can't be used,
/// and std::exception for an entry that isn't a file-name command. `entries` then has those before it. Main thread
/// only.
void read_gallery(std::vector<GalleryEntry>& entries);

/// What `read_gallery` makes of a file's value. Throws std::exception as it does; `entries` then has those before.
void append_gallery_entries(const boost::json::object& file, std::vector<GalleryEntry>& entries);
