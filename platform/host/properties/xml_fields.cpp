#include "platform/host/properties/xml_fields.h"

#include <QXmlStreamReader>

namespace platform {

namespace {

/// Far more than the documents have; a made-up one could have millions.
constexpr std::size_t most_fields = 500;

void add(XmlFields& fields, const std::u16string& name, const QString& text)
{
    if (text.trimmed().isEmpty() || (fields.size() >= most_fields && !fields.contains(name)))
        return;
    std::u16string& value = fields[name];
    if (!value.empty())
        value += u';';
    value += text.toStdU16String();
}

std::u16string name_of(QStringView name)
{
    return name.toString().toStdU16String();
}

}

XmlFields xml_fields(const std::string& xml)
{
    XmlFields fields;
    QXmlStreamReader reader(QByteArray::fromRawData(xml.data(), static_cast<qsizetype>(xml.size())));
    std::u16string name;
    QString text;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            name = name_of(reader.name());
            text.clear();
            for (const auto& attribute : reader.attributes())
                add(fields, u"@" + name_of(attribute.name()), attribute.value().toString());
            break;
        case QXmlStreamReader::Characters: text += reader.text(); break;
        case QXmlStreamReader::EndElement:
            add(fields, name, text);
            text.clear();
            break;
        default: break;
        }
    }
    return fields;
}

}
