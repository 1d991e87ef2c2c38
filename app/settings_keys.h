#pragma once

#include <QLatin1StringView>

/// Keys of what the window keeps between sessions. An editor's page keeps its own beside them.
namespace settings_keys {

/// Byte array of QWidget::saveGeometry.
inline constexpr QLatin1StringView window_geometry("AppWindowGeometry");
/// Byte array of QSplitter::saveState: between the lists and the page.
inline constexpr QLatin1StringView horizontal_splitter("VKHorizontalSplitter");
/// Number of the tab that shows: 0 the menu list, 1 the library.
inline constexpr QLatin1StringView active_tab("VKActiveTab");
/// The lists' current rows.
inline constexpr QLatin1StringView menu_row("VKMenuCommandsSelectedIndex");
inline constexpr QLatin1StringView library_row("VKLibraryCommandsSelectedIndex");

}
