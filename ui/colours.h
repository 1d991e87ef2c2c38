#pragma once

#include <QColor>

/// The colours that follow the colour scheme. Main thread only.
namespace colours {

/// False until it is set.
bool dark_mode();
/// To be set before the first window shows. On a later change the widgets repaint when the palette's or the theme's
/// change event reaches them, so it has to be set before that.
void set_dark_mode(bool dark);

QColor title_bar_background();
QColor title_bar_hover_background();
/// Also of disclosure triangles and of a splitter's grip at rest.
QColor title_text();
/// A splitter's grip under the mouse.
QColor hovered_grip();

/// The rows of a commands list, by the command's class and whether the selection lets it show.
QColor file_name_command_shown();
QColor file_name_command_shown_nameless();
QColor file_name_command_not_shown();
QColor builtin_command_shown();
QColor builtin_command_not_shown();

QColor filter_panel_background();

QColor chip_border();
QColor chip_body();
QColor literal_box();
QColor chip_text();
QColor value_box();

QColor parts_work_band();
QColor insertion_marker();
/// "Drag to add:".
QColor palette_label();
/// The hint in an empty work band.
QColor work_band_placeholder();
QColor palette_row_background();

QColor preview_background();
QColor section_background();

/// In light mode `colour` itself; in dark mode the same hue and alpha, less saturated and dark.
QColor dark_variant(const QColor& colour);

}
