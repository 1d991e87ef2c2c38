#include "ui/widgets/field_manners.h"

#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QWidget>

#include <utility>
#include <vector>

namespace {

/// Ignores what its condition names before the field sees it. Lives as long as the field.
class Filter final : public QObject
{
public:
    using Condition = bool (*)(const QWidget& field, QEvent& event);

    Filter(QWidget& field, Condition ignored) : QObject(&field), field_(field), ignored_(ignored)
    {
        field.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (!ignored_(field_, *event))
            return false;
        event->ignore();
        return true;
    }

private:
    const QWidget& field_;
    Condition ignored_;
};

}

bool is_undo_or_redo(const QEvent& event)
{
    if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

void leave_wheel_to_page(QWidget& field)
{
    field.setFocusPolicy(Qt::StrongFocus);
    new Filter(field, [](const QWidget& watched, QEvent& event) {
        return event.type() == QEvent::Wheel && !watched.hasFocus();
    });
}

void align_by_layout(QLabel& label)
{
    label.setAlignment(QStyle::visualAlignment(label.layoutDirection(), Qt::AlignLeft) | Qt::AlignAbsolute |
                       Qt::AlignVCenter);
}

void leave_undo_to_window(QWidget& field)
{
    new Filter(field, [](const QWidget&, QEvent& event) { return is_undo_or_redo(event); });
}

void put_into_tab_order(const QWidget& group, QWidget& before)
{
    // QWidget::setTabOrder leaves groups where they are that take no focus themselves.
    std::vector<QWidget*> fields;
    for (QWidget* widget = before.nextInFocusChain(); widget != &before; widget = widget->nextInFocusChain())
        if (group.isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy())
            fields.push_back(widget);
    QWidget* last = &before;
    for (QWidget* field : fields)
        QWidget::setTabOrder(std::exchange(last, field), field);
}
