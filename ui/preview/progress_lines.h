#pragma once

#include <QWidget>

class ElidedLabel;

/// Two lines that tell what a run is doing, cut in the middle where they are too long. Main thread only.
class ProgressLines final : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressLines(QWidget* parent = nullptr);

public slots:
    /// `item` is the path of the item being worked on. Either may be empty.
    void show_progress(const QString& status, const QString& item);

private:
    ElidedLabel* const status_;
    ElidedLabel* const item_;
};
