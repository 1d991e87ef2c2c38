#include "ui/filters/extensions_text.h"

#include "ui/text.h"

#include <QStringList>

#include <algorithm>

QString shown_extensions(std::u16string_view list)
{
    return to_qstring(list).replace(';', QLatin1StringView("; "));
}

std::u16string bare_extensions(const QString& typed)
{
    QStringList extensions;
    for (QString piece : typed.split(';')) {
        piece = piece.trimmed();
        piece.remove(0, std::ranges::find_if(piece, [](QChar unit) { return unit != '.'; }) - piece.begin());
        if (!piece.isEmpty())
            extensions += piece;
    }
    return from_qstring(extensions.join(';'));
}
