#pragma once

#include "platform/properties.h"

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The display texts of one file's properties, for a sample file or a single look-up. Not shared between threads.
class ItemPropertyReader
{
public:
    /// `path` in drive or server form, without the long-path prefix.
    explicit ItemPropertyReader(std::u16string path);

    /// Canonical names of the properties that the file can have, in the system's order.
    std::vector<std::u16string> property_names() const;

    /// Reads these properties' display texts, without their marks of writing direction. One that the file doesn't
    /// have gets no entry.
    void load_display_values(std::span<const std::u16string> names);

    /// Empty for a property that was not loaded.
    std::u16string display_value(std::u16string_view name) const;

private:
    std::u16string path_;
    std::map<std::u16string, std::u16string, std::less<>> values_;
};

/// The text without U+202A to U+202E.
std::u16string without_direction_marks(std::u16string_view text);

/// A property's raw value, empty when the file doesn't have it. `path` as above.
std::optional<platform::PropertyValue> property_raw_value(std::u16string_view path, std::u16string_view name);
