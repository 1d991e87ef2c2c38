#pragma once

#include <QKeySequence>

class MainAppUi;
class MirvantaApp;

/// The keys that work wherever the focus is in the window. Tool tips of what they stand for name them.
namespace window_keys {

inline const QKeySequence save_keys(Qt::CTRL | Qt::Key_S), new_keys(Qt::CTRL | Qt::Key_N),
    duplicate_keys(Qt::CTRL | Qt::Key_D);

/// Gives the window these keys, and F6 and Shift+F6, which go from the list to the areas of the page and round.
void add(MirvantaApp& app, MainAppUi& ui);

}
