#include "app/initial_command.h"

#include "engine/commands/vellumark_command.h"
#include "ui/lists/commands_list_controller.h"

#include <algorithm>

InitialCommand initial_command(const VellumarkCommand* last, const CommandsListController& menu,
                               const CommandsListController& library)
{
    if (!last)
        return {.row = std::max(menu.first_file_name_command_row(), 0)};
    if (const int row = menu.find(*last); row >= 0)
        return {.row = row};
    if (const int row = library.find(*last); row >= 0)
        return {.in_library = true, .row = row};
    return {.row = static_cast<int>(menu.commands().size()), .is_new = true};
}
