#include "engine/parts/property_part.h"
#include "engine/properties/item_property_reader.h"
#include "engine_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

using platform::FileTimeValue;
using platform::PropertyType;
using platform::PropertyValue;
using ValueType = ItemPartProperty::ValueType;

/// A part from JSON with single quotes for double ones.
ItemPartProperty part(std::string json)
{
    std::ranges::replace(json, '\'', '"');
    return ItemPartProperty(boost::json::parse("{\"property-name\":\"System.X\"," + json + "}").as_object());
}

TEST(PropertyPart, FormatsRawValues)
{
    using Case = std::tuple<std::string, PropertyValue, std::string>;
    const std::string numeric = "'value-type':'numeric'", grouped = numeric + ",'add-thousands-separator':true",
                      duration = "'value-type':'duration'", rounded = duration + ",'round-to-seconds':true",
                      size = "'value-type':'size','size-format':'";
    const Case cases[]{
        {grouped, 1234.5, "1234.5"},
        {grouped, 1234.0, "1,234"},
        {grouped, std::int64_t{-1234567}, "-1,234,567"},
        {numeric, 0.25, "0.25"},
        {numeric, 0.0000004, "0"},
        {numeric, -0.0, "0"},
        {numeric, std::u16string(u"12.50"), "12.5"},
        {numeric, std::u16string(u"twelve"), ""},
        {duration, std::int64_t{125'000'000}, "12.5"},
        {rounded, std::int64_t{125'000'000}, "13"},
        {duration, std::uint64_t{120'000'000}, "12"},
        {rounded, std::uint64_t{120'000'000}, "12"},
        {rounded, std::int64_t{124'999'999}, "12"},
        {rounded + ",'add-thousands-separator':true", std::int64_t{12'345'000'000'000}, "1,234,500"},
        {size + "auto'", std::uint64_t{1536}, "2K"},
        {size + "auto'", std::int64_t{-5}, "-5B"},
        {size + "kbytes'", std::int64_t{-1}, "0"},
        {size + "kbytes'", std::int64_t{-1024}, "0"},
        {size + "kbytes'", std::int64_t{-2048}, "-1"},
        {size + "bytes','add-thousands-separator':true", std::uint64_t{1536}, "1,536"},
        {"'value-type':'boolean'", true, "Yes"},
        {"'value-type':'boolean','boolean-format':'true-false'", true, "True"},
        {"'value-type':'boolean','boolean-format':'one-zero'", false, "0"},
        {"'value-type':'string','case-type':'UpperCase'", std::vector<std::u16string>{u"a", u"b"}, "A; B"},
        {"'value-type':'datetime','date-format':'iso-date-time'", FileTimeValue{133'540'961'430'000'000},
         "2024-03-05 07:09:03"},
        {"'value-type':'datetime','date-format':'month-digits','add-leading-zeros':true",
         FileTimeValue{133'540'961'430'000'000}, "03"},
        {"'value-type':'datetime'", std::u16string(u"x"), ""},
    };
    for (const auto& [format, value, expected] : cases)
        EXPECT_EQ(to_utf8(part("'custom-format':true," + format).formatted(value)), expected) << format;
    EXPECT_EQ(part("'custom-format':true," + numeric).formatted(1e300).size(), 301u);
}

TEST(PropertyPart, WritesWhatItsTypeNeeds)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {"'custom-format':false,'value-type':'size'", ""},
        {"'custom-format':true,'value-type':'?'", ",'custom-format':true,'value-type':'default'"},
        {"'custom-format':true,'value-type':'numeric'",
         ",'custom-format':true,'value-type':'numeric','add-thousands-separator':false"},
        {"'custom-format':true,'value-type':'datetime','date-format':'?'",
         ",'custom-format':true,'value-type':'datetime','date-format':'short-date','add-leading-zeros':false"},
        {"'custom-format':true,'value-type':'string'",
         ",'custom-format':true,'value-type':'string','case-type':'Unchanged'"},
        {"'custom-format':true,'value-type':'boolean','boolean-format':'one-zero'",
         ",'custom-format':true,'value-type':'boolean','boolean-format':'one-zero'"},
        {"'custom-format':true,'value-type':'size','size-format':'auto'",
         ",'custom-format':true,'value-type':'size','size-format':'auto','add-thousands-separator':false"},
        {"'custom-format':true,'value-type':'duration','round-to-seconds':true",
         ",'custom-format':true,'value-type':'duration','add-thousands-separator':false,'round-to-seconds':true"},
    };
    for (const auto& [stored, expected] : cases) {
        std::string written = boost::json::serialize(part(stored).to_json());
        std::ranges::replace(written, '"', '\'');
        EXPECT_EQ(written, "{'property-name':'System.X'" + expected + "}");
    }
    EXPECT_THROW(ItemPartProperty(boost::json::object()), std::runtime_error);
    EXPECT_FALSE(part("'round-to-seconds':true").equals(part("'round-to-seconds':false")));
}

TEST(PropertyPart, ChoosesTheTypeThatSuits)
{
    const std::vector<std::tuple<std::u16string, PropertyType, ValueType>> cases{
        {u"System.Size", PropertyType::UI8, ValueType::Size},
        {u"system.size", PropertyType::UI8, ValueType::Numeric},
        {u"System.FileAllocationSize", PropertyType::Empty, ValueType::Size},
        {u"System.Media.Duration", PropertyType::UI8, ValueType::Duration},
        {u"X", PropertyType::StringVector, ValueType::String},
        {u"X", PropertyType::Bool, ValueType::Boolean},
        {u"X", PropertyType::FileTime, ValueType::DateTime},
        {u"X", PropertyType::R8, ValueType::Numeric},
        {u"X", PropertyType::UI1, ValueType::Default},
        {u"X", PropertyType::Date, ValueType::Default},
        {u"X", PropertyType::Empty, ValueType::Default}};
    for (const auto& [name, type, expected] : cases)
        EXPECT_EQ(ItemPartProperty::default_value_type(name, type), expected) << to_utf8(name);
}

TEST(PropertyPart, ReadsTheFileOnceForTheDisplayTextAndAnewForFormats)
{
    const TempFolder folder;
    folder.write("f", "12345");
    const MVItemsSet set(folder.path("f"));
    const auto display = make_command("{'fileParts':[{'item-type':'property','property-name':'System.Size'}]}");
    const auto raw =
        make_command("{'fileParts':[{'item-type':'property','property-name':'System.Size','custom-format':"
                     "true,'value-type':'size'},{'item-type':'property','property-name':'System.None'}]}");
    const std::string first = generated(display, set);
    EXPECT_FALSE(first.empty());
    EXPECT_EQ(generated(raw, set), "5");
    folder.write("f", "1234567");
    EXPECT_EQ(generated(display, set), first);
    EXPECT_EQ(generated(raw, set), "7");
}

/// What stands for odd bytes of a name is a character like others in a title.
TEST(PropertyPart, WritesATitleAsItIs)
{
    using namespace std::string_literals;
    const TempFolder folder;
    const auto path =
        folder.write("scan.tif", "II*\0\x08\0\0\0\1\0\x0E\1\2\0\x06\0\0\0\x1A\0\0\0\0\0\0\0a\uF05Cz\0"s);
    const auto command =
        make_command("{'fileParts':[{'item-type':'property','property-name':'System.Title'},{'item-type':'property',"
                     "'property-name':'System.Title','custom-format':true,'value-type':'string'}]}");
    const std::string title = to_utf8(platform::FileProperties(path).display_text(u"System.Title").value_or(u""));
    EXPECT_TRUE(title.empty() || title == "a\uF05Cz");
    EXPECT_EQ(generated(command, MVItemsSet(path)), title + title);
}

TEST(DirectionMarks, AreRemoved)
{
    EXPECT_EQ(without_direction_marks(u"\u202A1\u200E.\u202C2\u202E\u2029"), u"1\u200E.2\u2029");
}

}
