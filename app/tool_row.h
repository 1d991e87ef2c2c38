#pragma once

#include <QWidget>

class QAction;
class QUndoStack;

/// The row of tools at the window's top: undo and redo on the left, "About" on the right.
class ToolRow final : public QWidget
{
    Q_OBJECT

public:
    explicit ToolRow(QUndoStack& stack, QWidget* parent = nullptr);

    /// Both do nothing while there is nothing to undo or redo.
    void undo();
    void redo();

signals:
    /// The mouse or a screen reader presses undo or redo, which takes no focus and comes next.
    void step_requested();
    /// "About" was chosen.
    void about_requested();

private:
    static QAction* take_step_action(QAction* action, const QKeySequence& keys);

    QAction* undo_;
    QAction* redo_;
};
