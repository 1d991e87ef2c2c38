#include "host_root.h"
#include "platform/paths.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace std::literals;

namespace {

TEST(Paths, HostNamesTravelAndComeBack)
{
    const std::vector<std::pair<std::string, std::u16string>> rows{
        {"plain.txt", u"plain.txt"},
        {"gr\u00FC\u00DFe \u20AC", u"gr\u00FC\u00DFe \u20AC"},
        {"\U0001F600\U0010FFFF\U00010000", u"\U0001F600\U0010FFFF\U00010000"},
        {"a\\b", u"a\uF05Cb"},
        {"\uF05C\uF05B", u"\xDCEF\xDC81\xDC9C\uF05B"},
        {"\xFF"
         "a\x80",
         u"\xDCFF"
         u"a\xDC80"},
        {"\xC0\xAF|\xC1\xBF|\xE0\x9F\xBF|\xF0\x8F\xBF\xBF", // longer than needed
         u"\xDCC0\xDCAF|\xDCC1\xDCBF|\xDCE0\xDC9F\xDCBF|\xDCF0\xDC8F\xDCBF\xDCBF"},
        {"\xED\xA0\x80\xED\xBF\xBF", u"\xDCED\xDCA0\xDC80\xDCED\xDCBF\xDCBF"}, // surrogates
        {"\xED\x9F\xBF\xEE\x80\x80", u"\uD7FF\uE000"},
        {"\xF4\x90\x80\x80|\xF8\x88\x80\x80", u"\xDCF4\xDC90\xDC80\xDC80|\xDCF8\xDC88\xDC80\xDC80"}, // too large
        {"\xE2\x82|\xF0\x9F\x98", u"\xDCE2\xDC82|\xDCF0\xDC9F\xDC98"},                               // cut off
        {"\xE2\x82\xE2\x82\xAC", u"\xDCE2\xDC82\u20AC"},
    };
    for (const auto& [bytes, units] : rows) {
        EXPECT_EQ(platform::from_host_name(bytes), units) << bytes;
        std::string back = "before/";
        platform::append_host_name(back, units);
        EXPECT_EQ(back, "before/" + bytes);
    }
    std::string broken;
    platform::append_host_name(broken, u"\xD800|\xDC7F|\xDD00");
    EXPECT_EQ(broken, "\uFFFD|\uFFFD|\uFFFD");
}

TEST(Paths, EveryByteStringComesBack)
{
    unsigned state = 1;
    for (int round = 0; round < 20'000; ++round) {
        std::string bytes = "/";
        for (int i = 0; i < 12; ++i) {
            state = state * 1'664'525 + 1'013'904'223;
            bytes += "\xEF\x81\x9C\xF0\x9F\x98\x80\xED\xA0\xC3\x5C\\ab.."[state >> 28];
            bytes += i % 5 == 4 ? "x/x" : "";
        }
        ASSERT_EQ(platform::to_host_path(platform::from_host_path(bytes)), bytes);
    }
}

TEST(Paths, FormsOfAPath)
{
    struct Row {
        std::u16string path;
        std::string at_root, below_folder;
    };

    const std::vector<Row> rows{
        {u"C:\\", "/", "/r"},
        {u"C:", "/", "/r"},
        {u"c:\\a\\b\uF05Cc", "/a/b\\c", "/r/a/b\\c"},
        {u"C:\\a\\", "/a/", "/r/a/"},
        {u"\\\\?\\C:\\a", "/a", "/r/a"},
        {u"\\\\?\\UNC\\srv\\share\\f", "/net/srv/share/f", "/r/net/srv/share/f"},
        {u"\\\\srv\\share", "/net/srv/share", "/r/net/srv/share"},
        {u"\\\\srv", "/net/srv", "/r/net/srv"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(platform::to_host_path(row.path), row.at_root);
        const HostRoot root("/r/");
        EXPECT_EQ(platform::to_host_path(row.path), row.below_folder);
    }
    for (const std::u16string& nothing :
         {u""s, u"D:\\a"s, u"C:a"s, u"a"s, u"/a"s, u"\\a"s, u"\\\\"s, u"\\\\\\a"s, u"\\\\.\\pipe\\x"s, u"\\\\..\\x"s,
          u"\\\\?\\UNC\\..\\x"s, u"\\\\?\\D:\\"s, u"C:\\a/b"s, u"\\\\s/t\\x"s, u"C:\\a\0b"s, u"\\\\?\\"s})
        EXPECT_EQ(platform::to_host_path(nothing), "") << std::string(nothing.begin(), nothing.end());

    const HostRoot root("/r");
    EXPECT_EQ(platform::from_host_path("/r"), u"C:\\");
    EXPECT_EQ(platform::from_host_path("/r/a/b\\c"), u"C:\\a\\b\uF05Cc");
    EXPECT_EQ(platform::from_host_path("/rest/a"), u"C:\\rest\\a");
}

TEST(Paths, PresentableText)
{
    const std::vector<std::pair<std::u16string, std::u16string>> rows{
        {u"", u""},
        {u"a\uF05Cb\uF05B", u"a\\b\uF05B"},
        {u"\xDCFFx\xD83D", u"\uFFFDx\uFFFD"},
        {u"\xD83D\xD83D\xDE00\xDE00", u"\uFFFD\U0001F600\uFFFD"},
    };
    for (std::size_t before : {0u, 1u, 63u, 64u, 200u})
        for (const auto& [text, expected] : rows) {
            const std::u16string padding(before, u'\uD7FF');
            std::u16string result = padding;
            result.append(text).append(padding);
            platform::make_presentable(result);
            EXPECT_EQ(result, std::u16string(padding).append(expected).append(padding));
        }
}

TEST(Paths, AbsoluteHostPath)
{
    const std::vector<std::array<std::string, 3>> rows{
        {"b", "/a", "/a/b"},
        {"/x//y/", "/a", "/x/y"},
        {"../c", "/a/b", "/a/c"},
        {"./.", "/a/b/", "/a/b"},
        {"../../..", "/a/b", "/"},
        {"/..", "/a", "/"},
        {"", "/a", "/a"},
        {"/", "/a", "/"},
        {"..b/.c.", "/", "/..b/.c."},
        {"/a/../../b/.", "/q", "/b"},
        {"\xFF/\\", "/a", "/a/\xFF/\\"},
    };
    for (const auto& [path, current, expected] : rows)
        EXPECT_EQ(platform::absolute_host_path(path, current), expected) << path << " in " << current;
}

}
