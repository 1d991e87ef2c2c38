#include "platform/host/properties/display_text.h"
#include "platform/host/properties/property_table.h"
#include "platform/host/properties/readers.h"

#include <map>

namespace platform {

/// Reads with one library after another, each at most once, and keeps what it found.
class FileProperties::Source
{
public:
    explicit Source(std::u16string_view path) : file_(path) {}

    SubjectFile& file() { return file_; }

    const PropertyValue* find(const PropertyRow& row)
    {
        if (!file_.attributes())
            return nullptr;
        constexpr unsigned without_content = FromPath | FromFileSystem | FromType;
        const unsigned wanted =
            (row.readers & without_content) != 0 ? row.readers : row.readers & readers_of(file_.kind());
        if (wanted == 0)
            return nullptr;
        for (const auto& reader : built_in_readers()) {
            if ((wanted & reader.readers) == 0)
                continue;
            const Findings& findings = findings_of(reader);
            const PropertyValue* const value = findings.bag.find(row.name);
            if (value || findings.are_complete)
                return value;
        }
        return nullptr;
    }

private:
    struct Findings {
        PropertyBag bag;
        bool are_complete = false;
    };

    SubjectFile file_;
    /// Apart, so that of two libraries with a value for one name the first counts, whichever was asked before.
    std::map<unsigned, Findings> findings_;

    const Findings& findings_of(const ReaderRow& reader)
    {
        const auto [place, is_new] = findings_.try_emplace(reader.readers);
        if (is_new) {
            file_.start_allowance();
            place->second.are_complete = reader.read(file_, place->second.bag);
        }
        return place->second;
    }
};

FileProperties::FileProperties(std::u16string_view path) : source_(std::make_unique<Source>(path)) {}

FileProperties::~FileProperties() = default;

std::vector<std::u16string> FileProperties::names()
{
    std::vector<std::u16string> result;
    if (!source_->file().attributes())
        return result;
    unsigned built_in = 0;
    for (const auto& reader : built_in_readers())
        built_in |= reader.readers;
    const unsigned readers = built_in & readers_of(source_->file().kind());
    for (const auto& row : property_rows())
        if ((row.readers & readers) != 0)
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
    return found ? std::optional(text_for_display(*found, row->display)) : std::nullopt;
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
