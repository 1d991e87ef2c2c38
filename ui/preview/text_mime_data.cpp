#include "ui/preview/text_mime_data.h"

QVariant TextMimeData::retrieveData(const QString& format, QMetaType /*type*/) const
{
    return hasFormat(format) ? QVariant(text_.mid(part_.offset, part_.length)) : QVariant();
}
