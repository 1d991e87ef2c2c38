#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// What is known of a file beyond its name, size and times: a property is named by its canonical name
/// ("System.Title"). Names and declared types are those of the public Windows property documentation.
namespace platform {

/// Kinds of property values, with the numbers of the documented VARTYPE enumeration. `Vector` is added to the kind of
/// the elements.
enum class PropertyType : std::uint16_t {
    Empty = 0,
    I2 = 2,
    I4 = 3,
    R4 = 4,
    R8 = 5,
    Cy = 6,
    Date = 7,
    Bstr = 8,
    Bool = 11,
    I1 = 16,
    UI1 = 17,
    UI2 = 18,
    UI4 = 19,
    I8 = 20,
    UI8 = 21,
    Int = 22,
    UInt = 23,
    Lpstr = 30,
    Lpwstr = 31,
    FileTime = 64,
    Vector = 0x1000,
    StringVector = Vector + Lpwstr
};

/// 100 ns since 1601 UTC.
struct FileTimeValue {
    std::int64_t ticks = 0;
};

/// A property's raw value.
using PropertyValue = std::variant<bool, std::int64_t, std::uint64_t, double, FileTimeValue, std::u16string,
                                   std::vector<std::u16string>>;

/// Conversions as the documented ones do them: a text of a number converts to the number, a number to its digits, a
/// bool to 1 or 0, a list of one element as that element; a longer list becomes a text joined with "; ". Empty when
/// the value can't be converted; a number out of range or not finite can't, and a moment is no number.
std::optional<double> to_double(const PropertyValue& value);
/// A fraction is rounded, half to even.
std::optional<std::int64_t> to_int64(const PropertyValue& value);
/// False for 0, true for any other number; "true" and "false" in any case too.
std::optional<bool> to_bool(const PropertyValue& value);
/// Without groups of digits and without an exponent; a moment in UTC as "2024/03/05:14:02:11.250".
std::optional<std::u16string> to_text(const PropertyValue& value);
/// In local time, 100 ns since 1601. Empty for what is no moment.
std::optional<std::int64_t> to_local_file_time(const PropertyValue& value);

/// The properties of one file. Opens the file with a metadata library only when a property asks for one, at most once
/// a library, and leaves it open for its own life at the most. What the libraries found is remembered for the
/// thread's last few files, a few MiB at the worst, so that further objects for the same path needn't open the file
/// as long as its identity (device and number), size and times are the same. A file that changed within the last two
/// seconds is read anew each time: a next change might not show in its times. Only regular files are opened, links
/// followed; what the file system knows of a link is its own. A broken or hostile file has fewer properties, nothing
/// else. What was read stays as it was for the object's life. One object serves the thread that made it; several
/// objects may be at work at once.
class FileProperties
{
public:
    /// `path` in drive or server form, without the long-path prefix.
    explicit FileProperties(std::u16string_view path);
    ~FileProperties();
    FileProperties(const FileProperties&) = delete;
    FileProperties& operator=(const FileProperties&) = delete;

    /// Canonical names of the properties for lists, in a stable order: general ones that the file has, then those
    /// that files of its kind can have. Empty when the file is gone.
    std::vector<std::u16string> names();

    /// Empty when the file doesn't have the property, or its name is unknown.
    std::optional<PropertyValue> value(std::u16string_view name);

    /// The value as people read it ("4032 x 3024", "00:03:12", "f/2.8"), in the user's locale. Empty as `value`.
    std::optional<std::u16string> display_text(std::u16string_view name);

private:
    class Source;
    std::unique_ptr<Source> source_;
};

/// English name of a property for lists ("Date taken"); empty for an unknown name.
std::u16string property_display_name(std::u16string_view name);

/// Declared type of a property; Empty for an unknown name.
PropertyType property_type(std::u16string_view name);

}
