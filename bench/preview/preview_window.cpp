#include "preview/preview_window.h"

#include "preview/loop_watch.h"

#include <QWindow>

#include <stdexcept>

PreviewWindow::PreviewWindow() : edit_(widget_.findChild<PreviewTextEdit*>()), paints_(*edit_->viewport())
{
    widget_.resize(1000, 700);
    widget_.show();
    if (!run_until([this] { return widget_.windowHandle()->isExposed() && paints_.paints() > 0; }))
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
