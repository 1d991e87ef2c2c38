#include "platform/host/properties/xml_fields.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>

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

QString decoded(const std::string& xml)
{
    const QByteArrayView bytes(xml.data(), static_cast<qsizetype>(xml.size()));
    QStringDecoder decoder(QStringConverter::encodingForData(bytes, u'<').value_or(QStringConverter::Utf8));
    return decoder(bytes);
}

/// Where the tag ends that begins at `at`; -1 when that isn't within the longest tag.
qsizetype end_of_tag(QStringView text, qsizetype at)
{
    constexpr qsizetype longest_tag = 4096;
    const qsizetype limit = std::min(text.size(), at + longest_tag);
    for (QChar quote; at < limit; ++at) {
        if (quote.isNull() ? text[at] == u'"' || text[at] == u'\'' : text[at] == quote)
            quote = quote.isNull() ? text[at] : QChar();
        else if (quote.isNull() && text[at] == u'>')
            return at;
    }
    return -1;
}

/// How much of the text can be parsed in good time: Qt compares each attribute of a tag with all others. Declarations
/// of a document's type are never needed, and can make much of little.
qsizetype harmless_size(QStringView text)
{
    struct Passage {
        QStringView start, end;
    };

    constexpr Passage passages[] = {{u"<!--", u"-->"}, {u"<![CDATA[", u"]]>"}, {u"<?", u"?>"}};
    qsizetype at = 0;
    while ((at = text.indexOf(u'<', at)) >= 0) {
        const QStringView rest = text.sliced(at);
        const auto* const passage =
            std::ranges::find_if(passages, [rest](const auto& known) { return rest.startsWith(known.start); });
        const bool is_tag = passage == std::end(passages);
        if (is_tag && rest.startsWith(u"<!"))
            return at;
        const qsizetype end = is_tag ? end_of_tag(text, at) : text.indexOf(passage->end, at + passage->start.size());
        if (end < 0)
            return at;
        at = end;
    }
    return text.size();
}

}

XmlFields xml_fields(const std::string& xml)
{
    XmlFields fields;
    const QString whole = decoded(xml);
    QXmlStreamReader reader(whole.first(harmless_size(whole)));
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
