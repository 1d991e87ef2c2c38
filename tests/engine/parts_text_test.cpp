#include "engine/parts/auto_number_part.h"
#include "engine/parts/date_part.h"
#include "engine/parts/name_part.h"
#include "engine/parts/path_part.h"
#include "engine/parts/size_part.h"
#include "engine/parts/text_run_context.h"
#include "engine_fixture.h"
#include "platform/local_time.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace {

std::string text_of_part(const ItemPartBase& part, const MVItemBase& item)
{
    TextRunContext context;
    part.append_text(context, item, 0);
    return to_utf8(context.output.take());
}

std::shared_ptr<MVItemBase> named(std::u16string name, std::uint64_t size = 0, bool is_folder = false)
{
    return make_item({{.modified = 133'540'961'430'000'000, .size = size, .is_folder = is_folder}, std::move(name)},
                     nullptr);
}

TEST(NamePart, SplitsAtTheLastDot)
{
    using enum ItemPartName::NameType;
    const std::vector<std::array<std::u16string, 3>> cases{{u"archive.tar.gz", u"archive.tar", u"gz"},
                                                           {u".gitignore", u"", u"gitignore"},
                                                           {u"README", u"README", u""},
                                                           {u"end.", u"end", u""},
                                                           {u"a.b c", u"a", u"b c"}};
    for (const auto& [name, stem, extension] : cases) {
        ItemPartName part;
        part.set_name_type(NameNoExt);
        EXPECT_EQ(text_of_part(part, *named(name)), to_utf8(stem));
        part.set_name_type(ExtOnly);
        EXPECT_EQ(text_of_part(part, *named(name, 0, true)), to_utf8(extension));
    }
}

TEST(NamePart, SelectorPartsAreReadWithinTheirRange)
{
    const auto item = named(u"x");
    ItemPartName part;
    part.set_name_type(ItemPartName::NameType::SelectorPart);
    EXPECT_EQ(text_of_part(part, *item), "");
    item->set_selector_parts({u"zero", u"one"});
    for (const auto& [index, expected] : {std::pair{-1, ""}, {0, "zero"}, {1, "one"}, {2, ""}}) {
        part.set_selector_part_index(index);
        EXPECT_EQ(text_of_part(part, *item), expected);
    }
}

TEST(NamePart, ShowsOddBytesAsWhatTheyAre)
{
    EXPECT_EQ(text_of_part(ItemPartName(), *named(u"a\xF05C\x62\xDCFFz\U0001F389")), "a\\b\uFFFDz\U0001F389");
}

TEST(PathPart, LinkTargetsTakeTheSeparator)
{
    const TempFolder folder;
    folder.write("to/File.txt");
    folder.make_link("link", "to/File.txt");
    folder.make_link("gone", "nowhere");
    const MVItemsSet set(std::vector{folder.path("link"), folder.path("to/File.txt"), folder.path("gone")});
    ItemPartPath part;
    part.set_path_type(ItemPartPath::PathType::LinkTarget);
    const std::string target = folder.host("to/File.txt");
    std::string drive_form = to_utf8(folder.path("to/File.txt"));
    EXPECT_EQ(text_of_part(part, *set.items()[0]), drive_form);
    EXPECT_EQ(text_of_part(part, *set.items()[1]), "");
    EXPECT_EQ(text_of_part(part, *set.items()[2]), "");
    part.set_separator_text(u"/");
    EXPECT_EQ(text_of_part(part, *set.items()[0]), "C:" + target);
    part.set_case_type(CaseType::PascalCase);
    EXPECT_EQ(text_of_part(part, *set.items()[0]).find('/'), std::string::npos) << "separators are converted too";
    std::erase(drive_form, '\\');
    const ItemPartPath without(boost::json::parse(R"({"path-type":"link-target","separator-text":""})").as_object());
    EXPECT_EQ(text_of_part(without, *set.items()[0]), drive_form);
}

TEST(PathPart, CountsFoldersOfFilesAndOfParentsAlike)
{
    const TempFolder folder;
    folder.write("a/b/f.txt");
    const MVItemsSet set(folder.path("a/b/f.txt"));
    ItemPartPath part;
    part.set_limit_num_parents(true);
    std::string text;
    for (const auto type : {ItemPartPath::PathType::FullPath, ItemPartPath::PathType::PathToParentFolder,
                            ItemPartPath::PathType::PathNoDrive, ItemPartPath::PathType::DriveOnly,
                            ItemPartPath::PathType::DriveLetterOnly}) {
        part.set_path_type(type);
        text += text_of_part(part, *set.items()[0]) + "|";
    }
    EXPECT_EQ(text, "b\\f.txt|b|b\\f.txt|C:|C|");
    part.set_path_type(ItemPartPath::PathType::FullPath);
    for (const std::int32_t parents : {0, -3, std::numeric_limits<std::int32_t>::max()}) {
        part.set_num_parents(parents);
        EXPECT_EQ(text_of_part(part, *set.items()[0]), to_utf8(folder.path("a/b/f.txt")));
    }
    EXPECT_EQ(text_of_part(part, set.root()), "");
}

TEST(SizePart, RoundsUpAndChoosesUnits)
{
    using enum ItemPartSize::SizeFormat;
    using Case = std::tuple<std::uint64_t, ItemPartSize::SizeFormat, std::string>;
    const Case cases[]{{0, TBytes, "0"},
                       {0, Auto, "0B"},
                       {1, KBytes, "1"},
                       {1024, KBytes, "1"},
                       {1025, KBytes, "2"},
                       {1023, Auto, "1023B"},
                       {1024, Auto, "1K"},
                       {1048575, Auto, "1024K"},
                       {1048576, Auto, "1M"},
                       {(std::uint64_t{1} << 30) - 1, Auto, "1024M"},
                       {(std::uint64_t{1} << 40) + 1, Auto, "2T"},
                       {std::uint64_t{5000} << 40, Auto, "5000T"},
                       {1234567, Bytes, "1234567"},
                       {1, ItemPartSize::SizeFormat(9), "1"}};
    for (const auto& [bytes, format, expected] : cases)
        EXPECT_EQ(to_utf8(size_text(bytes, format, false)), expected) << bytes;
    EXPECT_EQ(to_utf8(size_text(1234567, Bytes, true)), "1,234,567");
    EXPECT_EQ(text_of_part(ItemPartSize(), *named(u"folder", 7, true)), "");
}

TEST(DatePart, FormatsEveryField)
{
    const platform::BrokenDownTime sunday{2024, 3, 0, 3, 7, 9, 3, 0}, monday{2024, 11, 1, 25, 0, 59, 0, 0};
    const auto all = [](const platform::BrokenDownTime& time, bool zeros) {
        std::string text;
        for (unsigned format = 4; format <= 21; ++format)
            text += to_utf8(format_date(time, ItemPartDate::DateFormat(format), zeros)) + "|";
        return text;
    };
    EXPECT_EQ(all(sunday, false), "2024-03-03 07:09:03|2024-03-03_07-09-03|2024|24|March|Mar|3|3|Sunday|Sun|0|7|7|7|"
                                  "09|03|AM||");
    EXPECT_EQ(all(monday, true), "2024-11-25 00:59:00|2024-11-25_00-59-00|2024|24|November|Nov|11|25|Monday|Mon|1|1|"
                                 "00|12|59|00|AM||");
}

TEST(DatePart, UnknownTimesContributeNothing)
{
    const auto item = named(u"x");
    ItemPartDate part;
    part.set_date_format(ItemPartDate::DateFormat::IsoDateTime);
    EXPECT_EQ(text_of_part(part, *item), "2024-03-05 07:09:03");
    part.set_date_type(ItemPartDate::DateType::Created);
    EXPECT_EQ(text_of_part(part, *item), "");
    for (const std::int64_t ticks : {std::int64_t{-1}, std::numeric_limits<std::int64_t>::max()})
        EXPECT_EQ(text_of_part(part, *make_item({{.created = ticks}, u"x"}, nullptr)), "");
}

TEST(AutoNumberPart, CountsCallsInWrappingArithmetic)
{
    ItemPartAutoNumber part;
    TextRunContext context;
    const auto next = [&](int calls = 1) {
        for (; calls > 0; --calls) {
            part.append_text(context, *named(u"x"), 0);
            context.output.append(u" ");
        }
        return to_utf8(context.output.take());
    };
    part.set_start(10);
    part.set_step(5);
    EXPECT_EQ(next(3), "10 15 20 ");
    part.set_start(0);
    part.set_step(std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(next(), "18446744073709551613 ") << "3 x (2^64 - 1)";
    context.counter = 12345;
    part.set_step(1);
    part.set_add_leading_zeros(true);
    part.set_n_digits(3);
    EXPECT_EQ(next(), "12345 ");
    context.counter = 0;
    part.set_n_digits(5);
    part.set_add_thousands_separator(true);
    EXPECT_EQ(next(2), "00,000 00,001 ");
    part.set_n_digits(0);
    EXPECT_EQ(next(), "2 ");
    part.set_add_thousands_separator(false);
    part.set_n_digits(std::numeric_limits<std::uint32_t>::max());
    EXPECT_EQ(next(), std::string(ItemPartAutoNumber::most_digits - 1, '0') + "3 ");
}

}
