#pragma once

class QWidget;

/// Leaves the wheel to the page around a combo box or number field as long as that doesn't have the focus, so that
/// scrolling past changes nothing.
void leave_wheel_to_page(QWidget& field);

/// Leaves the keys of undo to the window even where the field has an undo of its own: undo is the command stack's.
void leave_undo_to_window(QWidget& field);
