#include "app/stored_state.h"

#include "ui/lists/commands_list_controller.h"
#include "ui/lists/commands_list_model.h"

void StoredState::load()
{
    old_file_ = commands_file::OldFile::Kept;
    StoredCommands stored = commands_file::load();
    old_file_ = commands_file::OldFile::Replaced;
    menu_.model().set_saved_commands(std::move(stored.menu));
    library_.model().set_saved_commands(std::move(stored.library));
    presets_ = std::move(stored.presets);
    saved_presets_ = presets_;
}

void StoredState::save()
{
    commands_file::save(menu_.commands(), library_.commands(), presets_, old_file_);
    old_file_ = commands_file::OldFile::Replaced;
    menu_.model().mark_saved();
    library_.model().mark_saved();
    saved_presets_ = presets_;
}

bool StoredState::has_unsaved_changes() const
{
    return menu_.is_modified() || library_.is_modified() || presets_ != saved_presets_;
}
