#include "app/selection_message.h"

#include "engine/items/selection_protocol.h"

#include <QByteArrayView>
#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QLatin1StringView latin1(std::string_view key)
{
    return QLatin1StringView(key.data(), static_cast<qsizetype>(key.size()));
}

QStringList paths_of(const QJsonObject& message)
{
    QStringList paths;
    const QJsonArray array = message[latin1(selection_protocol::paths_key)].toArray();
    for (const auto path : array)
        if (const QString text = path.toString(); !text.isEmpty())
            paths.append(text);
    return paths;
}

}

void log_too_large_message(std::size_t size)
{
    qDebug() << "Message too large:" << size << "bytes";
}

std::optional<SelectionMessage> decode_selection_message(std::span<const char> bytes)
{
    if (bytes.size() > selection_protocol::largest_message) {
        log_too_large_message(bytes.size());
        return std::nullopt;
    }
    const auto raw = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    const QJsonDocument document = QJsonDocument::fromJson(raw);
    if (document.isNull()) {
        qDebug() << "Invalid JSON received";
        return std::nullopt;
    }
    qDebug() << "OK";
    const QJsonObject object = document.object();
    SelectionMessage message{object[latin1(selection_protocol::command_index_key)].toInt(-1), paths_of(object)};
    if (message.paths.isEmpty()) {
        qDebug() << "No paths";
        return std::nullopt;
    }
    return message;
}
