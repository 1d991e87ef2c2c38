#include "app/stored_state.h"

#include "app/renewed_list.h"
#include "store/commands_merge.h"
#include "store/preset_followers.h"
#include "store/written_forms.h"
#include "ui/lists/command_lists.h"
#include "ui/lists/commands_list_model.h"
#include "ui/lists/undo_move_command_between_lists.h"
#include "ui/presets/presets.h"
#include "ui/presets/undo_presets_change.h"

#include <QCoreApplication>
#include <QScopeGuard>

namespace {

/// What was read, as the saved forms of what the lists show. A filter goes by its preset, whatever was read of it.
StoredCommands saved_forms(const StoredCommands& read, CommandLists& lists)
{
    for (const CommandList* list : {&read.menu, &read.library})
        preset_followers::update(*list, read.presets);
    return {.menu = written_forms::saved_forms(read.menu, lists.menu().commands()),
            .library = written_forms::saved_forms(read.library, lists.library().commands()),
            .presets = read.presets};
}

}

void StoredState::fill(commands_file::Loaded loaded)
{
    set_known(loaded);
    for (const CommandList* list : {&loaded.commands.menu, &loaded.commands.library})
        preset_followers::update(*list, loaded.commands.presets);
    lists_.menu().model().set_saved_commands(std::move(loaded.commands.menu));
    lists_.library().model().set_saved_commands(std::move(loaded.commands.library));
    presets_.set_both(std::move(loaded.commands.presets));
}

bool StoredState::has_unsaved_changes() const
{
    return lists_.menu().is_modified() || lists_.library().is_modified() || presets_.is_modified();
}

PendingSave StoredState::save() const
{
    PendingSave save = save_over_all();
    save.saving.old = old_file_;
    save.saving.known = given_up_;
    if (text_)
        save.saving.known->push_back(*text_);
    return save;
}

PendingSave StoredState::save_over_all() const
{
    PendingSave save{.saving = {.text = {}, .old = OldFile::Kept},
                     .menu = lists_.menu().model().snapshot(),
                     .library = lists_.library().model().snapshot(),
                     .presets = presets_.working()};
    preset_followers::update(save.menu.copies, save.presets);
    preset_followers::update(save.library.copies, save.presets);
    save.saving.text = commands_saving::text_of({save.menu.copies, save.library.copies, save.presets});
    return save;
}

void StoredState::mark_saved(PendingSave save)
{
    set_known({.commands = {}, .text = std::move(save.saving.text)});
    for (const ListSnapshot* list : {&save.menu, &save.library})
        preset_followers::update(list->commands, presets_.working());
    lists_.menu().model().mark_saved(std::move(save.menu));
    lists_.library().model().mark_saved(std::move(save.library));
    presets_.set_saved(std::move(save.presets));
}

void StoredState::give_up(const PendingSave& save)
{
    given_up_.push_back(save.saving.text);
}

bool StoredState::is_news(const commands_file::Loaded& loaded) const
{
    return loaded.text && (!is_loaded_ || loaded.text != text_);
}

void StoredState::take_over(const commands_file::Loaded& loaded)
{
    set_known(loaded);
    const StoredCommands saved = saved_forms(loaded.commands, lists_);
    push_lists({renewed_list::renewed(lists_.menu().commands(), saved.menu),
                renewed_list::renewed(lists_.library().commands(), saved.library), saved.presets},
               saved, QCoreApplication::translate("MirvantaApp", "Reload Commands"));
}

void StoredState::merge(const commands_file::Loaded& loaded)
{
    StoredCommands theirs = saved_forms(loaded.commands, lists_);
    const CommandsListController &menu = lists_.menu(), &library = lists_.library();
    const StoredCommands base{menu.model().saved_commands(), library.model().saved_commands(), presets_.saved()};
    // An empty menu stands for the default commands, and says nothing of what was deleted.
    if (theirs.menu.empty())
        theirs.menu = base.menu;
    StoredCommands merged = merge_commands(base, {menu.commands(), library.commands(), presets_.working()}, theirs);
    merged.menu = renewed_list::edited(std::move(merged.menu), theirs.menu);
    merged.library = renewed_list::edited(std::move(merged.library), theirs.library);
    set_known(loaded);
    push_lists(merged, theirs, QCoreApplication::translate("MirvantaApp", "Merge Commands"));
}

void StoredState::set_known(const commands_file::Loaded& loaded)
{
    is_loaded_ = true;
    text_ = loaded.text;
    given_up_.clear();
    old_file_ = loaded.old;
}

void StoredState::push_lists(const StoredCommands& commands, const StoredCommands& saved, const QString& text)
{
    CommandsListController &menu = lists_.menu(), &library = lists_.library();
    menu.model().set_saved_form(saved.menu);
    library.model().set_saved_form(saved.library);
    // Which commands are unsaved, or of the last session, may be another matter though the lists are the same.
    menu.model().refresh_rows();
    library.model().refresh_rows();
    // Their signal has Save looked at as well.
    presets_.set_saved(saved.presets);
    const bool other_lists = commands.menu != menu.commands() || commands.library != library.commands();
    const bool other_presets = commands.presets != presets_.working();
    if (!other_lists && !other_presets)
        return;
    QUndoStack& stack = lists_.steps().stack();
    stack.beginMacro(text);
    const auto end = qScopeGuard([&stack] { stack.endMacro(); });
    if (other_lists)
        stack.push(new UndoMoveCommandBetweenLists(lists_, renewed_list::state_of(commands.menu, menu),
                                                   renewed_list::state_of(commands.library, library), {}));
    if (other_presets)
        stack.push(new UndoPresetsChange(lists_, presets_, commands.presets, {}));
}

CommandList StoredState::update_followers()
{
    CommandList changed = preset_followers::update(lists_.menu().commands(), presets_.working());
    for (auto& command : preset_followers::update(lists_.library().commands(), presets_.working()))
        changed.push_back(std::move(command));
    return changed;
}
