#pragma once

#include <boost/json.hpp>

#include <string>
#include <vector>

/// A named list of extensions that file filters can follow.
class ExtensionsPreset
{
public:
    ExtensionsPreset() = default;
    /// Throws std::runtime_error "Missing key in JSON: " and the key; all three keys are required.
    explicit ExtensionsPreset(const boost::json::object& json);
    boost::json::object to_json() const;

    /// 36 lower-case characters, hexadecimal digits in groups of 8, 4, 4, 4 and 12.
    std::u16string uuid;
    std::u16string name;

    const std::u16string& extensions() const { return extensions_; }

    /// Stores the list in lower case.
    void set_extensions(std::u16string_view extensions);

    /// Gives the preset a new random `uuid`.
    void make_new_uuid();

    bool operator==(const ExtensionsPreset&) const = default;

private:
    std::u16string extensions_;
};

/// Replaces `presets` by those of a JSON array; elements that are no objects are skipped.
void read_presets(const boost::json::array& json, std::vector<ExtensionsPreset>& presets);
boost::json::array presets_to_json(const std::vector<ExtensionsPreset>& presets);
