#include "ui/preview/elided_label.h"

#include <QFontMetrics>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::set_text(const QString& text)
{
    if (text == whole_text_)
        return;
    whole_text_ = text;
    // A name can hold line ends.
    whole_text_.replace(u'\n', u' ').replace(u'\r', u' ');
    setAccessibleName(whole_text_);
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
