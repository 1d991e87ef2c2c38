#include "ui/widgets/grip_splitter_handle.h"

#include "ui/colours.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

/// Pixels by which one press of an arrow key moves a handle along `orientation`; 0 for any other key.
int step_of(int key, Qt::Orientation orientation)
{
    constexpr int step = 10;
    const bool horizontal = orientation == Qt::Horizontal;
    if (key == (horizontal ? Qt::Key_Left : Qt::Key_Up))
        return -step;
    return key == (horizontal ? Qt::Key_Right : Qt::Key_Down) ? step : 0;
}

}

std::array<QPointF, 3> grip_dots(QSizeF handle, Qt::Orientation splitter)
{
    const QPointF centre(handle.width() / 2, handle.height() / 2);
    const QPointF step = splitter == Qt::Horizontal ? QPointF(0, 5) : QPointF(5, 0);
    return {centre - step, centre, centre + step};
}

GripSplitterHandle::GripSplitterHandle(Qt::Orientation orientation, QSplitter* parent)
    : QSplitterHandle(orientation, parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Divider"));
    setAccessibleDescription(tr("The arrow keys move it."));
}

void GripSplitterHandle::paintEvent(QPaintEvent*)
{
    const bool lit = hovered_ || hasFocus();
    QPainter painter(this);
    painter.fillRect(rect(), lit ? colours::title_bar_hover_background() : colours::title_bar_background());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(lit ? colours::hovered_grip() : colours::title_text());
    for (const QPointF& dot : grip_dots(size(), orientation()))
        painter.drawEllipse(dot, 1.5, 1.5);
}

void GripSplitterHandle::enterEvent(QEnterEvent* event)
{
    set_hovered(true);
    QSplitterHandle::enterEvent(event);
}

void GripSplitterHandle::leaveEvent(QEvent* event)
{
    set_hovered(false);
    QSplitterHandle::leaveEvent(event);
}

void GripSplitterHandle::focusInEvent(QFocusEvent* event)
{
    QSplitterHandle::focusInEvent(event);
    update();
}

void GripSplitterHandle::focusOutEvent(QFocusEvent* event)
{
    QSplitterHandle::focusOutEvent(event);
    update();
}

void GripSplitterHandle::keyPressEvent(QKeyEvent* event)
{
    const int step = step_of(event->key(), orientation());
    if (step == 0)
        QSplitterHandle::keyPressEvent(event);
    else
        moveSplitter((orientation() == Qt::Horizontal ? x() : y()) + step);
}

void GripSplitterHandle::set_hovered(bool hovered)
{
    hovered_ = hovered;
    update();
}
