#include "platform/host/properties/content_record.h"
#include "platform/host/properties/display_text.h"
#include "platform/host/properties/property_table.h"
#include "platform/host/properties/reader_table.h"

namespace platform {

namespace {

constexpr unsigned without_content = FromPath | FromFileSystem;

const Findings& findings_of(const ReaderRow& reader, FileRecord& record)
{
    const auto [place, is_new] = record.findings.try_emplace(reader.readers);
    if (is_new) {
        record.file.start_allowance();
        place->second.are_complete = reader.read(record.file, place->second.bag);
    }
    return place->second;
}

bool has_number(const PropertyValue* value, std::int64_t number)
{
    return value && to_int64(*value) == number;
}

/// Asks those of the readers that the row names, up to the first one that has the value or knows that it isn't there.
const PropertyValue* find_in(FileRecord& record, const PropertyRow& row, unsigned readers)
{
    readers &= row.readers;
    if (readers == 0)
        return nullptr;
    for (const auto& reader : built_in_readers()) {
        if ((readers & reader.readers) == 0)
            continue;
        const Findings& findings = findings_of(reader, record);
        const PropertyValue* const value = findings.bag.find(row.name);
        if (value || findings.are_complete)
            return value;
    }
    return nullptr;
}

}

/// Reads with one library after another, each at most once. What they find in the content is kept beyond the object's
/// life, but not the open file; what the file system tells is read anew for each object.
class FileProperties::Source
{
public:
    explicit Source(std::u16string_view path) : entry_(path) {}

    ~Source()
    {
        if (content_)
            content_->file.close();
    }

    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    const PropertyValue* find(const PropertyRow& row)
    {
        if (!entry_.file.attributes())
            return nullptr;
        if ((row.readers & without_content) != 0)
            return find_in(entry_, row, without_content);
        return find_in(content(), row, readers_of(content().file.kind()));
    }

    /// The way of display; that of a resolution depends on the unit.
    Display display_of(const PropertyRow& row)
    {
        if (row.display != Display::Resolution)
            return row.display;
        const PropertyRow* const unit_row = find_property_row(u"System.Image.ResolutionUnit");
        const PropertyValue* const unit = unit_row ? find(*unit_row) : nullptr;
        constexpr std::int64_t no_unit = 1, centimetres = 3;
        return has_number(unit, centimetres) ? Display::MetricResolution
               : has_number(unit, no_unit)   ? Display::Number
                                             : row.display;
    }

    /// Whether files of this kind can have the property; what is known without opening the file must be there.
    bool offers(const PropertyRow& row)
    {
        if ((row.readers & (without_content | FromType)) != 0 || !entry_.file.attributes())
            return find(row) != nullptr;
        unsigned built_in = 0;
        for (const auto& reader : built_in_readers())
            built_in |= reader.readers;
        return (row.readers & built_in & readers_of(content().file.kind())) != 0;
    }

private:
    FileRecord entry_;
    std::shared_ptr<FileRecord> content_;

    FileRecord& content()
    {
        if (!content_)
            content_ = content_record(entry_.file.path());
        return *content_;
    }
};

FileProperties::FileProperties(std::u16string_view path) : source_(std::make_unique<Source>(path)) {}

FileProperties::~FileProperties() = default;

std::vector<std::u16string> FileProperties::names()
{
    std::vector<std::u16string> result;
    for (const auto& row : property_rows())
        if (source_->offers(row))
            result.emplace_back(row.name);
    return result;
}

std::optional<PropertyValue> FileProperties::value(std::u16string_view name)
{
    const PropertyRow* const row = find_property_row(name);
    const PropertyValue* const found = row ? source_->find(*row) : nullptr;
    return found ? std::optional(*found) : std::nullopt;
}

std::optional<std::u16string> FileProperties::display_text(std::u16string_view name)
{
    const PropertyRow* const row = find_property_row(name);
    const PropertyValue* const found = row ? source_->find(*row) : nullptr;
    return found ? std::optional(text_for_display(*found, source_->display_of(*row))) : std::nullopt;
}

std::u16string property_display_name(std::u16string_view name)
{
    const PropertyRow* const row = find_property_row(name);
    return row ? std::u16string(row->display_name) : std::u16string();
}

PropertyType property_type(std::u16string_view name)
{
    const PropertyRow* const row = find_property_row(name);
    return row ? row->type : PropertyType::Empty;
}

}
