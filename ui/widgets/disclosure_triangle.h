#pragma once

#include "ui/widgets/disclosure_control.h"

/// The triangle alone, for rows that do the rest themselves. Its user names it by `setAccessibleName` after what it
/// shows and hides.
class DisclosureTriangle : public DisclosureControl
{
    Q_OBJECT

public:
    explicit DisclosureTriangle(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    void activate() override;

signals:
    /// The triangle itself stays as it is.
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
};
