#pragma once

#include <QLatin1StringView>

/// Keys of what the window keeps between sessions. An editor's page keeps its own beside them.
namespace settings_keys {

inline constexpr QLatin1StringView window_geometry("AppWindowGeometry");
inline constexpr QLatin1StringView horizontal_splitter("VKHorizontalSplitter");
inline constexpr QLatin1StringView active_tab("VKActiveTab");
inline constexpr QLatin1StringView menu_row("VKMenuCommandsSelectedIndex");
inline constexpr QLatin1StringView library_row("VKLibraryCommandsSelectedIndex");

}
