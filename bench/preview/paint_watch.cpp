#include "preview/paint_watch.h"

#include "preview/loop_watch.h"

#include <QEvent>

PaintWatch::PaintWatch(QWidget& widget) : widget_(widget)
{
    widget_.installEventFilter(this);
}

bool PaintWatch::wait()
{
    widget_.update();
    return run_until([this, before = paints_] { return paints_ > before; });
}

bool PaintWatch::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Paint)
        ++paints_;
    return QObject::eventFilter(object, event);
}
