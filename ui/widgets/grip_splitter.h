#pragma once

#include <QSplitter>

/// A splitter whose handles show a grip, light up under the mouse and can be moved by the arrow keys. Main thread
/// only.
class GripSplitter : public QSplitter
{
    Q_OBJECT

public:
    explicit GripSplitter(Qt::Orientation orientation, QWidget* parent = nullptr);

protected:
    QSplitterHandle* createHandle() override;
};
