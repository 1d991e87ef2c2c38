#include "ui/widgets/header_label.h"

#include "ui/colours.h"
#include "ui/widgets/accessible_widgets.h"
#include "ui/widgets/title_painting.h"

#include <QPainter>

HeaderLabel::HeaderLabel(const QString& title, QWidget* parent) : QWidget(parent), title_(title)
{
    install_accessible_widgets();
    setAccessibleName(title);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize HeaderLabel::sizeHint() const
{
    return {0, title_height};
}

void HeaderLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), colours::title_bar_background());
    draw_bar_title(painter, rect(), title_);
}
