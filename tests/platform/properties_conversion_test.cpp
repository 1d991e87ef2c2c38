#include "property_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using platform::FileTimeValue;
using platform::PropertyValue;
using Strings = std::vector<std::u16string>;

namespace {

template <typename Value>
std::string shown(const std::optional<Value>& value)
{
    return value ? (testing::Message() << *value).GetString() : "-";
}

std::string shown(const std::optional<std::u16string>& value)
{
    return host_text(value.value_or(u"-"));
}

struct Row {
    PropertyValue value;
    /// As double, integer, bool and text.
    const char* expected;
};

TEST(PropertyConversion, OfEachKind)
{
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    const std::vector<Row> rows{
        {true, "1, 1, true, 1"},
        {false, "0, 0, false, 0"},
        {std::int64_t{-7}, "-7, -7, true, -7"},
        {std::numeric_limits<std::uint64_t>::max(), "1.8446744073709552e+19, -, true, 18446744073709551615"},
        {2.5, "2.5, 2, true, 2.5"},
        {3.5, "3.5, 4, true, 3.5"},
        {1e19, "1e+19, -, true, 10000000000000000000"},
        {-0.0, "-0, 0, false, 0"},
        {infinity, "-, -, -, -"},
        {std::nan(""), "-, -, -, -"},
        {std::u16string(u"42"), "42, 42, true, 42"},
        {std::u16string(u" +42 "), "42, 42, true,  +42 "},
        {std::u16string(u"-1.5"), "-1.5, -2, true, -1.5"},
        {std::u16string(u"9223372036854775807"),
         "9.2233720368547758e+18, 9223372036854775807, true, 9223372036854775807"},
        {std::u16string(u"0"), "0, 0, false, 0"},
        {std::u16string(u"True"), "-, -, true, True"},
        {std::u16string(u"false"), "-, -, false, false"},
        {std::u16string(u"42 dogs"), "-, -, -, 42 dogs"},
        {std::u16string(u"1e999"), "-, -, -, 1e999"},
        {std::u16string(u"inf"), "-, -, -, inf"},
        {std::u16string(u""), "-, -, -, "},
        {Strings{u"12"}, "12, 12, true, 12"},
        {Strings{u"a", u"b c"}, "-, -, -, a; b c"},
        {Strings{}, "-, -, -, "},
        {FileTimeValue{133'541'173'312'500'000}, "-, -, -, 2024/03/05:13:02:11.250"},
        {FileTimeValue{-1}, "-, -, -, -"},
    };
    for (const auto& row : rows) {
        const auto flag = platform::to_bool(row.value);
        EXPECT_EQ(shown(platform::to_double(row.value)) + ", " + shown(platform::to_int64(row.value)) + ", " +
                      (flag ? *flag ? "true" : "false" : "-") + ", " + shown(platform::to_text(row.value)),
                  row.expected);
    }
}

TEST(PropertyConversion, OnlyMomentsAreTimes)
{
    EXPECT_FALSE(platform::to_local_file_time(std::int64_t{5}));
    EXPECT_FALSE(platform::to_local_file_time(std::u16string(u"2024")));
    EXPECT_FALSE(platform::to_local_file_time(FileTimeValue{-1}));
}

}
