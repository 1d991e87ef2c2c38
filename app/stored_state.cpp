#include "app/stored_state.h"

#include "ui/lists/command_lists.h"
#include "ui/lists/commands_list_model.h"

void StoredState::load()
{
    old_file_ = commands_file::OldFile::Kept;
    StoredCommands stored = commands_file::load();
    old_file_ = commands_file::OldFile::Replaced;
    lists_.menu().model().set_saved_commands(std::move(stored.menu));
    lists_.library().model().set_saved_commands(std::move(stored.library));
    presets_ = std::move(stored.presets);
    saved_presets_ = presets_;
}

void StoredState::save()
{
    commands_file::save(lists_.menu().commands(), lists_.library().commands(), presets_, old_file_);
    old_file_ = commands_file::OldFile::Replaced;
    lists_.menu().model().mark_saved();
    lists_.library().model().mark_saved();
    saved_presets_ = presets_;
}

bool StoredState::has_unsaved_changes() const
{
    return lists_.menu().is_modified() || lists_.library().is_modified() || presets_ != saved_presets_;
}
