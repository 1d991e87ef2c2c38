#pragma once

class QDialogButtonBox;
class QWidget;

/// Lays the empty window out: `tools` at the top, below them `content`, below that the buttons OK, Cancel and Help,
/// which come back. OK has the focus.
QDialogButtonBox& lay_out_window(QWidget& window, QWidget& tools, QWidget& content);
