#include "app/window_keys.h"

#include "app/main_app_ui.h"
#include "app/mirvanta_app.h"

#include <QApplication>
#include <QShortcut>

#include <algorithm>

namespace {

/// Visible, enabled and reached by Tab.
bool takes_focus(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus);
}

bool lies_in(const QWidget& area, const QWidget* widget)
{
    return widget == &area || area.isAncestorOf(widget);
}

/// The widget in the area that had the focus last, else the first one that takes it; null when none does.
QWidget* entry_of(QWidget& area)
{
    if (QWidget* last = area.focusWidget(); last && lies_in(area, last) && takes_focus(*last))
        return last;
    QWidget* widget = &area;
    do {
        if (lies_in(area, widget) && takes_focus(*widget))
            return widget;
        widget = widget->nextInFocusChain();
    } while (widget != &area);
    return nullptr;
}

/// `direction` is 1 or -1. From outside of all areas the way goes to the first or the last.
void go_to_area(const std::vector<QWidget*>& areas, int direction)
{
    const auto count = static_cast<int>(areas.size());
    const auto here =
        std::ranges::find_if(areas, [](const QWidget* area) { return lies_in(*area, QApplication::focusWidget()); });
    int at = here == areas.end() ? (direction > 0 ? -1 : count) : static_cast<int>(here - areas.begin());
    for (int tried = 0; tried < count; ++tried) {
        at = (at + direction + count) % count;
        if (QWidget* entry = entry_of(*areas[static_cast<std::size_t>(at)])) {
            entry->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

}

namespace window_keys {

void add(MirvantaApp& app, MainAppUi& ui)
{
    const auto add_key = [&app](const QKeySequence& keys, auto pressed) {
        auto* key = new QShortcut(keys, &app);
        // A key that is held down would fill the list, or run through the areas.
        key->setAutoRepeat(false);
        QObject::connect(key, &QShortcut::activated, &app, pressed);
    };
    add_key(save_keys, [&app] { app.save_key_pressed(); });
    add_key(new_keys, [&app] { app.new_command_btn_pressed(); });
    add_key(duplicate_keys, [&ui] { ui.press_duplicate(); });
    add_key(Qt::Key_F6, [&ui] { go_to_area(ui.focus_areas(), 1); });
    add_key(Qt::SHIFT | Qt::Key_F6, [&ui] { go_to_area(ui.focus_areas(), -1); });
}

}
