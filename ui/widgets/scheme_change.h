#pragma once

#include <QEvent>

/// Whether the event tells of another colour scheme, so that what was painted in colours of the table is out of date.
inline bool is_scheme_change(const QEvent& event)
{
    return event.type() == QEvent::PaletteChange || event.type() == QEvent::ThemeChange;
}
