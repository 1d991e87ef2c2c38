#include "platform/host/properties/moments.h"
#include "platform/host/properties/readers.h"
#include "platform/host/properties/text_bytes.h"
#include "platform/host/properties/xml_fields.h"
#include "platform/host/properties/zip_archive.h"
#include "platform/local_time.h"

#include <span>

namespace platform {

namespace {

enum class Shape { Text, List, Number, Moment, Minutes, Duration };

struct FieldRow {
    /// Local name of the element, or "@" and that of an attribute.
    std::u16string_view field;
    Shape shape;
    std::u16string_view name;
};

// Office Open XML, ISO/IEC 29500-2 (core) and 29500-1, 22.2 (extended).
constexpr FieldRow ooxml_fields[] = {
    {u"title", Shape::Text, u"System.Title"},
    {u"subject", Shape::Text, u"System.Subject"},
    {u"creator", Shape::List, u"System.Author"},
    {u"keywords", Shape::List, u"System.Keywords"},
    {u"description", Shape::Text, u"System.Comment"},
    {u"language", Shape::Text, u"System.Language"},
    {u"category", Shape::List, u"System.Category"},
    {u"lastModifiedBy", Shape::Text, u"System.Document.LastAuthor"},
    {u"revision", Shape::Text, u"System.Document.RevisionNumber"},
    {u"created", Shape::Moment, u"System.Document.DateCreated"},
    {u"modified", Shape::Moment, u"System.Document.DateSaved"},
    {u"Application", Shape::Text, u"System.ApplicationName"},
    {u"Company", Shape::Text, u"System.Company"},
    {u"Pages", Shape::Number, u"System.Document.PageCount"},
    {u"Slides", Shape::Number, u"System.Document.SlideCount"},
    {u"Words", Shape::Number, u"System.Document.WordCount"},
    {u"Lines", Shape::Number, u"System.Document.LineCount"},
    {u"Characters", Shape::Number, u"System.Document.CharacterCount"},
    {u"TotalTime", Shape::Minutes, u"System.Document.TotalEditingTime"},
};

// OpenDocument 1.2, part 1, 4.3.
constexpr FieldRow odf_fields[] = {
    {u"title", Shape::Text, u"System.Title"},
    {u"subject", Shape::Text, u"System.Subject"},
    {u"initial-creator", Shape::List, u"System.Author"},
    {u"creator", Shape::List, u"System.Author"},
    {u"keyword", Shape::List, u"System.Keywords"},
    {u"description", Shape::Text, u"System.Comment"},
    {u"language", Shape::Text, u"System.Language"},
    {u"generator", Shape::Text, u"System.ApplicationName"},
    {u"creator", Shape::Text, u"System.Document.LastAuthor"},
    {u"editing-cycles", Shape::Text, u"System.Document.RevisionNumber"},
    {u"creation-date", Shape::Moment, u"System.Document.DateCreated"},
    {u"date", Shape::Moment, u"System.Document.DateSaved"},
    {u"editing-duration", Shape::Duration, u"System.Document.TotalEditingTime"},
    {u"@page-count", Shape::Number, u"System.Document.PageCount"},
    {u"@word-count", Shape::Number, u"System.Document.WordCount"},
    {u"@character-count", Shape::Number, u"System.Document.CharacterCount"},
};

void set_field(PropertyBag& bag, const FieldRow& row, const std::u16string& text)
{
    constexpr std::int64_t ticks_per_minute = 60 * ticks_per_second, most_minutes = 100'000'000;
    const auto number = to_int64(text);
    switch (row.shape) {
    case Shape::Text: bag.set_text(row.name, text); break;
    case Shape::List: bag.set_list(row.name, text); break;
    case Shape::Number:
        if (number && *number >= 0 && *number <= INT32_MAX)
            bag.set_number(row.name, *number);
        break;
    case Shape::Moment: bag.set_time(row.name, parse_moment(to_ascii(text), AssumedZone::Local)); break;
    case Shape::Minutes:
        if (number && *number >= 0 && *number <= most_minutes)
            bag.set_count(row.name, static_cast<std::uint64_t>(*number * ticks_per_minute));
        break;
    case Shape::Duration:
        if (const auto ticks = parse_duration(to_ascii(text)))
            bag.set_count(row.name, static_cast<std::uint64_t>(*ticks));
        break;
    }
}

bool read_fields(const std::string& xml, std::span<const FieldRow> rows, PropertyBag& bag)
{
    const XmlFields fields = xml_fields(xml);
    for (const auto& row : rows)
        if (const auto found = fields.find(row.field); found != fields.end())
            set_field(bag, row, found->second);
    return !fields.empty();
}

}

bool read_office(SubjectFile& file, PropertyBag& bag)
{
    const ZipArchive archive(file);
    if (!archive.is_open())
        return false;
    const bool is_odf = read_fields(archive.content("meta.xml"), odf_fields, bag);
    const bool has_core = !is_odf && read_fields(archive.content("docProps/core.xml"), ooxml_fields, bag);
    const bool has_extended = !is_odf && read_fields(archive.content("docProps/app.xml"), ooxml_fields, bag);
    return is_odf || has_core || has_extended;
}

}
