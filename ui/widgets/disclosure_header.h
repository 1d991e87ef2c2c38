#pragma once

#include "ui/widgets/disclosure_control.h"

/// A title bar with a triangle, which shows and hides what lies below it.
class DisclosureHeader : public DisclosureControl
{
    Q_OBJECT

public:
    explicit DisclosureHeader(const QString& title, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    void activate() override;

signals:
    /// The user expanded or collapsed it.
    void toggled(bool expanded);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void set_hovered(bool hovered);

    QString title_;
    bool hovered_ = false;
};
