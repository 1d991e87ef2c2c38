#include "ui/preview/preview_layout.h"

#include <QFontMetricsF>
#include <QScopedValueRollback>
#include <QTextLayout>

void PreviewLayout::tell_size(bool by_guess)
{
    const QScopedValueRollback guess(is_guessing_, by_guess);
    emit documentSizeChanged(documentSize());
}

QRectF PreviewLayout::blockBoundingRect(const QTextBlock& block) const
{
    if (!is_guessing_ || !block.isValid() || block.layout()->lineCount() > 0)
        return QPlainTextDocumentLayout::blockBoundingRect(block);
    return {0, 0, 0, QFontMetricsF(document()->defaultFont()).lineSpacing()};
}
