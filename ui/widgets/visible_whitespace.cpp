#include "ui/widgets/visible_whitespace.h"

QString visible_whitespace(const QString& text)
{
    QString shown;
    shown.reserve(text.size());
    for (const QChar unit : text) {
        if (unit == u' ')
            shown += QChar(0xb7);
        else if (unit == u'\t')
            shown += QStringLiteral(" \u2192 ");
        else if (unit == u'\n')
            shown += line_feed_mark;
        else if (unit != u'\r')
            shown += unit;
    }
    return shown;
}
