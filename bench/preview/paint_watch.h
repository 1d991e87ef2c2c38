#pragma once

#include <QWidget>

/// Knows when a widget was last painted.
class PaintWatch final : public QObject
{
public:
    explicit PaintWatch(QWidget& widget);

    int paints() const { return paints_; }

    /// Runs the event loop until the widget has been painted after this call.
    bool wait();

private:
    bool eventFilter(QObject* object, QEvent* event) override;

    QWidget& widget_;
    int paints_ = 0;
};
