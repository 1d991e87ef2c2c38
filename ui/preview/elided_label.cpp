#include "ui/preview/elided_label.h"

#include <QEvent>
#include <QFontMetrics>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::set_text(const QString& text)
{
    QString line = text;
    // A name can hold line ends.
    line.replace(u'\n', u' ').replace(u'\r', u' ');
    if (line == whole_text_)
        return;
    whole_text_ = line;
    setAccessibleName(whole_text_);
    elide();
}

void ElidedLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        elide();
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::elide()
{
    setText(fontMetrics().elidedText(whole_text_, Qt::ElideMiddle, contentsRect().width()));
}
