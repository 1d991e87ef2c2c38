#pragma once

#include "store/commands_file.h"
#include "ui/lists/list_snapshot.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

class CommandLists;
class Presets;
class QString;

/// A save, with what it writes of the lists and presets.
struct PendingSave {
    CommandsSaving saving;
    ListSnapshot menu, library;
    std::vector<ExtensionsPreset> presets;
};

/// The stored commands and presets, between the commands file and what shows them: the two lists and the presets. It
/// touches no file, but knows what the file holds. Main thread only.
class StoredState
{
public:
    /// Empty until `fill`. A save before that keeps the file that it replaces.
    StoredState(CommandLists& lists, Presets& presets) : lists_(lists), presets_(presets) {}

    /// Takes what was loaded for the lists and presets, which count as saved.
    void fill(commands_file::Loaded loaded);

    /// That there is such a file is known, but of no use: a save may replace it, and keeps it.
    void set_unusable(std::string text) { text_ = std::move(text); }

    bool has_unsaved_changes() const;

    /// The lists and the presets as they are, to replace the file that is known here.
    PendingSave save() const;
    /// The same for whatever file is there, which is kept.
    PendingSave save_over_all() const;

    /// The save was written: what it wrote counts as saved, and what was changed since as a change.
    void mark_saved(PendingSave save);
    /// Nobody waits for the save, which may yet be written: the next one may replace what it wrote.
    void give_up(const PendingSave& save);

    /// Whether there is a file now that says something else than the one that is known here.
    bool is_news(const commands_file::Loaded& loaded) const;

    /// Replaces lists without changes of their own, as one step of undo, by what another program has saved, and the
    /// presets. Commands of which the file says the same stay as they are.
    void take_over(const commands_file::Loaded& loaded);

    /// Merges what another program has saved into the lists and the presets, as one step of undo.
    void merge(const commands_file::Loaded& loaded);

    /// Brings the commands of both lists up to date against the presets, which may be others than those that a list
    /// or a command comes from; returns those that it changed.
    CommandList update_followers();

private:
    void set_known(const commands_file::Loaded& loaded);
    void push_lists(const StoredCommands& commands, const StoredCommands& saved, const QString& text);

    CommandLists& lists_;
    Presets& presets_;
    bool is_loaded_ = false;
    std::optional<std::string> text_;   ///< of the file that was found or saved last
    std::vector<std::string> given_up_; ///< texts of saves since
    OldFile old_file_ = OldFile::Kept;
};
