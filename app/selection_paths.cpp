#include "app/selection_paths.h"

#include "ui/text.h"

#include <QDebug>

#include <exception>

void enter_selection(MVItemsSet& selection, const QStringList& paths)
{
    selection.reset();
    for (const QString& path : paths) {
        try {
            selection.add_path(from_qstring(path));
        } catch (const std::exception& error) {
            qDebug().noquote() << QStringLiteral("Exception adding path '%1': %2").arg(path, error.what());
        }
    }
}
