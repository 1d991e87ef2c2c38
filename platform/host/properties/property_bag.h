#pragma once

#include "platform/properties.h"

namespace platform {

/// What the readers found in one file. Names are those of the property table and live for ever; the first value of a
/// name stands, and an empty text is no value.
class PropertyBag
{
public:
    void set(std::u16string_view name, PropertyValue value);

    void set_number(std::u16string_view name, std::int64_t value) { set(name, value); }

    void set_count(std::u16string_view name, std::uint64_t value) { set(name, value); }

    /// Text cut at its first U+0000, without blanks at its ends, lone surrogates as U+FFFD.
    void set_text(std::u16string_view name, std::u16string_view text);
    /// UTF-8; what is none counts as Latin-1, which old programs wrote.
    void set_text(std::u16string_view name, std::string_view bytes);
    /// One string a piece between semicolons, empty ones left out.
    void set_list(std::u16string_view name, std::u16string_view text);
    /// As long as one text at the most, all strings together.
    void set_list(std::u16string_view name, const std::vector<std::u16string>& texts);
    /// Nothing without a value.
    void set_time(std::u16string_view name, std::optional<std::int64_t> ticks);

    /// Width, height, and both as a text.
    void set_dimensions(std::uint64_t width, std::uint64_t height);

    /// Null when no reader found one.
    const PropertyValue* find(std::u16string_view name) const;

private:
    std::vector<std::pair<std::u16string_view, PropertyValue>> values_;
};

}
