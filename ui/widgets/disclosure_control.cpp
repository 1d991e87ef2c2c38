#include "ui/widgets/disclosure_control.h"

#include "ui/widgets/accessible_widgets.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

DisclosureControl::DisclosureControl(QWidget* parent) : QWidget(parent)
{
    install_accessible_widgets();
    setFocusPolicy(Qt::StrongFocus);
}

void DisclosureControl::set_expanded(bool expanded)
{
    if (expanded == expanded_)
        return;
    expanded_ = expanded;
    update();
    announce_expanded(*this);
}

void DisclosureControl::draw_focus_mark(QPainter& painter) const
{
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void DisclosureControl::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    activate();
    event->accept();
}

void DisclosureControl::keyPressEvent(QKeyEvent* event)
{
    const bool pressed =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // A key that is held down would flicker between both states.
    if (pressed && !event->isAutoRepeat())
        activate();
    else if (!pressed)
        QWidget::keyPressEvent(event);
}
