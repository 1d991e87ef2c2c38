#include "ui/widgets/grip_splitter.h"

#include "ui/widgets/grip_splitter_handle.h"

GripSplitter::GripSplitter(Qt::Orientation orientation, QWidget* parent) : QSplitter(orientation, parent)
{
    setHandleWidth(7);
}

QSplitterHandle* GripSplitter::createHandle()
{
    return new GripSplitterHandle(orientation(), this);
}
