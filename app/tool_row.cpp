#include "app/tool_row.h"

#include <QAbstractButton>
#include <QAction>
#include <QHBoxLayout>
#include <QToolBar>
#include <QUndoStack>

namespace {

QToolBar* make_bar(const QString& name, const QList<QAction*>& actions)
{
    auto* bar = new QToolBar;
    bar->setAccessibleName(name);
    bar->addActions(actions);
    // A tool bar's buttons are left out of the tab order otherwise.
    for (QAction* action : actions)
        bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    return bar;
}

}

ToolRow::ToolRow(QUndoStack& stack, QWidget* parent)
    : QWidget(parent), undo_(take_step_action(stack.createUndoAction(this), QKeySequence::Undo)),
      redo_(take_step_action(stack.createRedoAction(this), QKeySequence::Redo))
{
    auto* about = new QAction(tr("About"), this);
    connect(about, &QAction::triggered, this, &ToolRow::about_requested);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    QToolBar* steps = make_bar(tr("Undo and redo"), {undo_, redo_});
    for (QAction* action : {undo_, redo_})
        connect(qobject_cast<QAbstractButton*>(steps->widgetForAction(action)), &QAbstractButton::pressed, this,
                &ToolRow::step_requested);
    layout->addWidget(steps);
    layout->addStretch();
    layout->addWidget(make_bar(tr("About this program"), {about}));
}

QAction* ToolRow::take_step_action(QAction* action, const QKeySequence& keys)
{
    action->setShortcut(keys);
    action->setShortcutContext(Qt::ApplicationShortcut);
    return action;
}

void ToolRow::undo()
{
    undo_->trigger();
}

void ToolRow::redo()
{
    redo_->trigger();
}
