#include "app/save_flow.h"

#include "app/message_boxes.h"
#include "app/stored_state.h"
#include "ui/lists/commands_list_controller.h"

bool SaveFlow::save()
{
    if (menu_.is_empty()) {
        MessageBoxes::show_menu_is_empty(&window_);
        return false;
    }
    if (!menu_.has_configure_command() && !MessageBoxes::save_without_configure_command(&window_))
        return false;
    try {
        stored_.save();
    } catch (const std::exception& error) {
        MessageBoxes::show_failure(&window_, MessageBoxes::tr("Failed to save stored commands"), error);
        return false;
    }
    return true;
}

bool SaveFlow::settle_changes()
{
    if (!stored_.has_unsaved_changes())
        return true;
    switch (MessageBoxes::ask_about_changes(&window_)) {
    case MessageBoxes::SaveChoice::Save: return save();
    case MessageBoxes::SaveChoice::DontSave: return true;
    case MessageBoxes::SaveChoice::Cancel: break;
    }
    return false;
}
