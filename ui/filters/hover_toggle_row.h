#pragma once

#include <QWidget>

class DisclosureTriangle;
class QLabel;

/// The row that shows and hides a filter: a triangle, and a label that can be clicked as well. Main thread only.
class HoverToggleRow final : public QWidget
{
    Q_OBJECT

public:
    explicit HoverToggleRow(QWidget* parent = nullptr);

    /// Rich text; screen readers have it as plain text.
    void set_text(const QString& text);

    /// Emits nothing.
    void set_expanded(bool expanded);

signals:
    /// The row itself stays as it is.
    void clicked();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void set_hovered(bool hovered);

    DisclosureTriangle* triangle_;
    QLabel* label_;
    bool hovered_ = false;
};
