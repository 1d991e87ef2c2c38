#include "app/window_state.h"

#include "app/main_app_ui.h"
#include "app/settings_keys.h"
#include "ui/lists/command_lists.h"

#include <QSettings>

namespace window_state {

void restore(QWidget& window, MainAppUi& ui)
{
    QSettings settings;
    window.restoreGeometry(settings.value(settings_keys::window_geometry).toByteArray());
    ui.restore_settings(settings);
}

void save(const QWidget& window, const MainAppUi& ui, CommandLists& lists)
{
    QSettings settings;
    settings.setValue(settings_keys::window_geometry, window.saveGeometry());
    settings.setValue(settings_keys::menu_row, lists.menu().current_index());
    settings.setValue(settings_keys::library_row, lists.library().current_index());
    ui.save_settings(settings);
}

}
