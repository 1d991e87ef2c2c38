#pragma once

#include "store/stored_commands.h"

#include <string>

/// Commands by what a file would hold of them: what isn't written is no difference.
namespace written_forms {

/// What a file would hold of a command, whichever list it stands in.
std::string form_of(const MVCommandBase& command);

/// The saved forms that `read` is for a list that shows `shown`: in the place of each command that is the same, a
/// clone of the one that shows, so that what isn't written of that counts as saved as well.
CommandList saved_forms(CommandList read, const CommandList& shown);

}
