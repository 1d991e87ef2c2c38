#pragma once

#include <QLabel>

/// One line of plain text that takes the width that it gets and leaves the middle out when that is too little. Main
/// thread only.
class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void set_text(const QString& text);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();

    QString whole_text_;
};
