#include "app/stored_flow.h"

#include "app/list_edits.h"
#include "app/message_boxes.h"
#include "app/stored_state.h"
#include "ui/lists/command_lists.h"

#include <QTimer>
#include <QWidget>

#include <stdexcept>

bool StoredFlow::load()
{
    try {
        stored_.load();
        return true;
    } catch (const std::exception& error) {
        // With the window, which has to listen for selections however long the box stays.
        QTimer::singleShot(0, &window_, [&window = window_, failure = std::runtime_error(error.what())] {
            MessageBoxes::show_failure(&window, MessageBoxes::tr("Failed to load stored commands"), failure);
        });
        return false;
    }
}

bool StoredFlow::save()
{
    const CommandsListController& menu = lists_.menu();
    if (menu.is_empty()) {
        MessageBoxes::show_menu_is_empty(&window_);
        return false;
    }
    if (!menu.has_configure_command() && !MessageBoxes::save_without_configure_command(&window_))
        return false;
    try {
        stored_.save();
    } catch (const std::exception& error) {
        MessageBoxes::show_failure(&window_, MessageBoxes::tr("Failed to save stored commands"), error);
        return false;
    }
    return true;
}

void StoredFlow::reset()
{
    try {
        list_edits::reset(lists_);
    } catch (const std::exception& error) {
        MessageBoxes::show_failure(&window_, MessageBoxes::tr("Failed to read built-in stored commands"), error);
    }
}

bool StoredFlow::settle_changes()
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
