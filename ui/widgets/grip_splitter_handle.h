#pragma once

#include <QPointF>
#include <QSplitterHandle>

#include <array>

/// The centres of the three dots of a grip, in a row along a handle of that size. A horizontal splitter's handle is
/// upright.
std::array<QPointF, 3> grip_dots(QSizeF handle, Qt::Orientation splitter);

/// The handle of a `GripSplitter`.
class GripSplitterHandle : public QSplitterHandle
{
    Q_OBJECT

public:
    GripSplitterHandle(Qt::Orientation orientation, QSplitter* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void set_hovered(bool hovered);

    bool hovered_ = false;
};
