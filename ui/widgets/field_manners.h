#pragma once

class QLabel;
class QEvent;
class QWidget;

/// Leaves the wheel to the page around a combo box or number field as long as that doesn't have the focus, so that
/// scrolling past changes nothing.
void leave_wheel_to_page(QWidget& field);

/// Has the label's text stand where reading begins in the label's layout, whatever language the text is in.
void align_by_layout(QLabel& label);

/// Leaves the keys of undo to the window even where the field has an undo of its own: undo is the command stack's.
void leave_undo_to_window(QWidget& field);

/// Whether the event is a key of undo or redo, as a press or as the question who takes it.
bool is_undo_or_redo(const QEvent& event);

/// Lets Tab come to the group's fields, in the order that they have, right behind `before`.
void put_into_tab_order(const QWidget& group, QWidget& before);
