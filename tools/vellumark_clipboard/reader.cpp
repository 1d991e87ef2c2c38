#include "vellumark_clipboard/reader.h"

#include "vellumark_clipboard/x11_clipboard.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>

#include <cstdio>

int read_text(int argc, char* argv[])
{
    if (!prepare_x11())
        return 1;
    const QGuiApplication application(argc, argv);
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data || !data->hasText())
        return 1;
    const QByteArray text = data->text().toUtf8();
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly))
        return 1;
    return output.write(text) == text.size() && output.flush() ? 0 : 1;
}
