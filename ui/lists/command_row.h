#pragma once

#include <QColor>
#include <QString>

class MVCommandBase;

/// What a row of a list shows and says of its command.
namespace command_row {

/// The name, or what stands in for an empty one; a command from the last session says that it is in no list yet.
QString shown_name(const MVCommandBase& command);

/// What kind of command it is.
QString kind(const MVCommandBase& command);

/// Why the command is marked; empty without a mark.
QString mark_reason(const MVCommandBase& command);

/// For screen readers: the shown name, and what others see by the mark and the colour. `shown` tells whether the
/// menu shows the command for the selection.
QString spoken_name(const MVCommandBase& command, bool shown);

QColor colour(const MVCommandBase& command, bool shown);

}
