#pragma once

class QFrame;

/// A thin sunken line between two groups of a column.
QFrame* make_horizontal_line();
