#include "preview/preview_window.h"

#include "preview/loop_watch.h"

#include <QEvent>
#include <QWindow>

#include <stdexcept>

PreviewWindow::PreviewWindow() : edit_(widget_.findChild<PreviewTextEdit*>())
{
    edit_->viewport()->installEventFilter(this);
    widget_.resize(1000, 700);
    widget_.show();
    if (!run_until([this] { return widget_.windowHandle()->isExposed() && paints_ > 0; }))
        throw std::runtime_error("the window never showed");
}

double PreviewWindow::show_and_paint(const QString& text)
{
    QElapsedTimer time;
    time.start();
    widget_.set_text(text);
    wait_for_paint();
    return static_cast<double>(time.nsecsElapsed()) / 1e6;
}

bool PreviewWindow::wait_for_paint()
{
    edit_->viewport()->update();
    return run_until([this, before = paints_] { return paints_ > before; });
}

bool PreviewWindow::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Paint)
        ++paints_;
    return QObject::eventFilter(object, event);
}
