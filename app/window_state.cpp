#include "app/window_state.h"

#include "app/main_app_ui.h"
#include "app/settings_keys.h"
#include "ui/lists/command_lists.h"

#include <QSettings>

namespace {

/// A list that isn't loaded has no current row: that of the last session stays.
void save_row(QSettings& settings, QAnyStringView key, const CommandsListController& list)
{
    if (list.current_index() >= 0)
        settings.setValue(key, list.current_index());
}

}

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
    save_row(settings, settings_keys::menu_row, lists.menu());
    save_row(settings, settings_keys::library_row, lists.library());
    ui.save_settings(settings);
}

}
