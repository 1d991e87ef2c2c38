#include "ui/lists/row_mime.h"

#include <QDataStream>
#include <QIODevice>
#include <QMap>
#include <QVariant>

std::vector<int> rows_of_item_list(QByteArray data)
{
    std::vector<int> rows;
    QDataStream stream(&data, QIODevice::ReadOnly);
    while (!stream.atEnd()) {
        int row = -1, column = -1;
        QMap<int, QVariant> roles;
        stream >> row >> column >> roles;
        if (stream.status() != QDataStream::Ok)
            break;
        rows.push_back(row);
    }
    return rows;
}
