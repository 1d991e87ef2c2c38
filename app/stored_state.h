#pragma once

#include "store/commands_file.h"

#include <vector>

class CommandLists;

/// The stored commands and presets, between the commands file and the two lists that show them. Main thread only.
class StoredState
{
public:
    /// Empty until `load`.
    explicit StoredState(CommandLists& lists) : lists_(lists) {}

    /// Fills the lists and the presets from the commands file. Throws what `commands_file::load` throws; nothing has
    /// changed then.
    void load();

    /// Writes the lists and the presets as they are; from then on they count as saved. After a `load` that failed the
    /// first save keeps the file that it replaces. Throws what
    /// `commands_file::save` throws; nothing counts as saved then that didn't before.
    void save();

    bool has_unsaved_changes() const;

private:
    CommandLists& lists_;
    std::vector<ExtensionsPreset> presets_; ///< the user's, as edited
    std::vector<ExtensionsPreset> saved_presets_;
    /// Kept by the next save when nothing could be loaded: the lists say nothing about what the file holds.
    commands_file::OldFile old_file_ = commands_file::OldFile::Replaced;
};
