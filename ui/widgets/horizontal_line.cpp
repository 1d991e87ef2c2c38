#include "ui/widgets/horizontal_line.h"

#include <QFrame>

QFrame* make_horizontal_line()
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}
