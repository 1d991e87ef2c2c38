#pragma once

#include <QStringList>

class QComboBox;

/// A combo box as wide as its longest entry, whose list keeps its rows a little apart. `name` is told by screen
/// readers. The wheel scrolls the page unless the box has the focus.
QComboBox* make_section_combo(const QStringList& entries, const QString& name);
