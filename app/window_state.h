#pragma once

class CommandLists;
class MainAppUi;
class QWidget;

/// What the window keeps between sessions. The lists' rows come back with `select_initial_command`, an editor's page
/// restores its own when it is added.
namespace window_state {

/// The window's place and size, and what `ui` keeps.
void restore(QWidget& window, MainAppUi& ui);

/// What `restore` brings back, the lists' current rows where there are such, and what the editors' pages keep.
void save(const QWidget& window, const MainAppUi& ui, CommandLists& lists);

}
