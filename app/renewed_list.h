#pragma once

#include "ui/lists/list_state.h"

class CommandsListController;

/// What a list becomes when another program has changed the commands file. Main thread only.
namespace renewed_list {

/// The commands as a list can edit them: clones in the place of those that are saved forms.
CommandList edited(CommandList list, const CommandList& saved);

/// What the file holds now, made of the commands that are shown where these are equal: `saved` are their saved forms
/// then. One from the last session that still isn't in the file stays behind the others.
CommandList renewed(const CommandList& shown, const CommandList& saved);

/// The list with the row of its current command, of that command's other form, or of what stands there now.
ListState state_of(CommandList commands, const CommandsListController& list);

}
