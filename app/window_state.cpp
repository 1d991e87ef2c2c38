#include "app/window_state.h"

#include "app/main_app_ui.h"
#include "app/settings_keys.h"
#include "ui/lists/commands_list_controller.h"

#include <QSettings>

namespace window_state {

void restore(QWidget& window, MainAppUi& ui)
{
    QSettings settings;
    window.restoreGeometry(settings.value(settings_keys::window_geometry).toByteArray());
    ui.restore_settings(settings);
}

void save(const QWidget& window, const MainAppUi& ui, const CommandsListController& menu,
          const CommandsListController& library)
{
    QSettings settings;
    settings.setValue(settings_keys::window_geometry, window.saveGeometry());
    settings.setValue(settings_keys::menu_row, menu.current_index());
    settings.setValue(settings_keys::library_row, library.current_index());
    ui.save_settings(settings);
}

}
