#include "app/stored_state.h"

#include "store/commands_merge.h"
#include "store/preset_followers.h"
#include "ui/lists/command_lists.h"
#include "ui/lists/commands_list_model.h"
#include "ui/lists/undo_move_command_between_lists.h"
#include "ui/presets/presets.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// A command that a list can edit, whose saved form is `saved`.
std::shared_ptr<MVCommandBase> edited(const std::shared_ptr<MVCommandBase>& saved)
{
    auto command = saved->clone();
    command->set_committed(saved);
    return command;
}

/// The commands as a list can edit them: clones in the place of those that are saved forms.
CommandList edited(CommandList list, const CommandList& saved)
{
    for (auto& command : list)
        if (std::ranges::find(saved, command) != saved.end())
            command = edited(command);
    return list;
}

/// What the file holds now, made of the commands that are shown where these are the same. One from the last session
/// that still isn't in the file stays behind the others.
CommandList renewed(const CommandList& shown, const CommandList& saved)
{
    CommandList rest = shown, result;
    for (const auto& command : saved) {
        const auto same = std::ranges::find_if(rest, [&](const auto& other) { return other->equals(*command); });
        if (same == rest.end()) {
            result.push_back(edited(command));
            continue;
        }
        (*same)->set_from_previous_session(false);
        (*same)->set_committed(command);
        result.push_back(std::move(*same));
        rest.erase(same);
    }
    std::ranges::copy_if(rest, std::back_inserter(result), &MVCommandBase::from_previous_session);
    return result;
}

/// The list with the row of its current command, of that command's other form, or of what stands there now.
ListState state_of(CommandList commands, const CommandsListController& list)
{
    const auto row_of = [&commands](const auto& fits) {
        const auto found = std::ranges::find_if(commands, fits);
        return found == commands.end() ? -1 : static_cast<int>(found - commands.begin());
    };
    const auto& current = list.current_command();
    int row = row_of([&](const auto& command) { return command == current; });
    if (row < 0 && current)
        row = row_of([&](const auto& command) {
            return command->type() == current->type() && command->name() == current->name();
        });
    if (row < 0)
        row = std::min(std::max(list.current_index(), 0), static_cast<int>(commands.size()) - 1);
    return {std::move(commands), row};
}

}

void StoredState::fill(commands_file::Loaded loaded)
{
    set_known(loaded);
    lists_.menu().model().set_saved_commands(std::move(loaded.commands.menu));
    lists_.library().model().set_saved_commands(std::move(loaded.commands.library));
    presets_.set_both(std::move(loaded.commands.presets));
}

bool StoredState::has_unsaved_changes() const
{
    return lists_.menu().is_modified() || lists_.library().is_modified() || presets_.is_modified();
}

CommandsSaving StoredState::saving() const
{
    if (!is_loaded_)
        return saving_over_all();
    std::vector<std::string> known = given_up_;
    if (text_)
        known.push_back(*text_);
    CommandsSaving saving = saving_over_all();
    saving.old = old_file_;
    saving.known = std::move(known);
    return saving;
}

CommandsSaving StoredState::saving_over_all() const
{
    return {.text =
                commands_saving::text_of({lists_.menu().commands(), lists_.library().commands(), presets_.working()}),
            .old = OldFile::Kept};
}

void StoredState::mark_saved(const CommandsSaving& saving)
{
    is_loaded_ = true;
    text_ = saving.text;
    given_up_.clear();
    old_file_ = OldFile::Replaced;
    for (CommandsListController* list : {&lists_.menu(), &lists_.library()}) {
        preset_followers::update(list->commands(), presets_.working());
        list->model().mark_saved();
    }
    presets_.set_saved(presets_.working());
}

void StoredState::give_up(const CommandsSaving& saving)
{
    given_up_.push_back(saving.text);
}

bool StoredState::is_news(const commands_file::Loaded& loaded) const
{
    return loaded.text && (!is_loaded_ || loaded.text != text_);
}

void StoredState::take_over(const commands_file::Loaded& loaded)
{
    set_known(loaded);
    const StoredCommands& saved = loaded.commands;
    push_lists({renewed(lists_.menu().commands(), saved.menu), renewed(lists_.library().commands(), saved.library),
                saved.presets},
               saved, QCoreApplication::translate("MirvantaApp", "Reload Commands"));
}

void StoredState::merge(commands_file::Loaded loaded)
{
    StoredCommands& theirs = loaded.commands;
    const CommandsListController &menu = lists_.menu(), &library = lists_.library();
    const StoredCommands base{menu.model().saved_commands(), library.model().saved_commands(), presets_.saved()};
    // An empty menu stands for the default commands, and says nothing of what was deleted.
    if (theirs.menu.empty())
        theirs.menu = base.menu;
    StoredCommands merged = merge_commands(base, {menu.commands(), library.commands(), presets_.working()}, theirs);
    merged.menu = edited(std::move(merged.menu), theirs.menu);
    merged.library = edited(std::move(merged.library), theirs.library);
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
    if (commands.menu != menu.commands() || commands.library != library.commands())
        lists_.steps().stack().push(new UndoMoveCommandBetweenLists(lists_, state_of(commands.menu, menu),
                                                                    state_of(commands.library, library), text));
    presets_.set_saved(saved.presets);
    presets_.set_working(commands.presets);
}
