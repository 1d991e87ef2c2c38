#pragma once

#include <QWidget>

/// A title bar that does nothing. Main thread only.
class HeaderLabel : public QWidget
{
    Q_OBJECT

public:
    explicit HeaderLabel(const QString& title, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString title_;
};
