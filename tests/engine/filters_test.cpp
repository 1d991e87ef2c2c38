#include "engine/filters/extensions_preset.h"
#include "engine/filters/item_filter.h"
#include "engine/text/utf.h"

#include <gtest/gtest.h>

#include <ctime>
#include <tuple>

namespace {

using Mode = ItemFilter::Mode;

ItemFilter filter(Mode mode, std::u16string pattern)
{
    ItemFilter made;
    made.set_filter_mode(mode);
    made.set_filter_pattern(std::move(pattern));
    return made;
}

TEST(ItemFilter, ParsesExtensionLists)
{
    const std::vector<std::pair<std::u16string, std::string>> cases{{u"JPG; .png ;;gif", "jpg|.png|gif|"},
                                                                    {u".jpg;.PNG", "jpg|png|"},
                                                                    {u" ; . ;..a; b c ", ".|.a|b c|"},
                                                                    {u"", ""}};
    for (const auto& [pattern, expected] : cases) {
        std::string joined;
        const ItemFilter made = filter(Mode::Extensions, pattern);
        for (const auto& extension : made.extensions())
            joined += to_utf8(extension) + "|";
        EXPECT_EQ(joined, expected) << to_utf8(pattern);
    }
    EXPECT_EQ(filter(Mode::Extensions, u"JPG; .png ;;gif").filter_pattern(), u"jpg; .png ;;gif");
    EXPECT_EQ(filter(Mode::Wildcard, u"*.JPG").filter_pattern(), u"*.JPG");
}

TEST(ItemFilter, Matches)
{
    using Case = std::tuple<Mode, std::u16string, std::u16string, bool>;
    const Case cases[]{
        {Mode::Extensions, u"jpg", u"photo.JPG", true},
        {Mode::Extensions, u"gitignore", u".gitignore", true},
        {Mode::Extensions, u"tar.gz", u"a.tar.gz", false},
        {Mode::Extensions, u"gz", u"a.tar.gz", true},
        {Mode::Extensions, u"txt", u"file.", false},
        {Mode::Extensions, u"txt", u"README", false},
        {Mode::Extensions, u" .txt", u"a.txt", false},
        {Mode::Extensions, u"txt", u"a.txt\\b", false},
        {Mode::Extensions, u";", u"a.txt", false},
        {Mode::Wildcard, u"*.txt", u"A.TXT", true},
        {Mode::Wildcard, u"*.txt", u".txt", true},
        {Mode::Wildcard, u"*.txt", u"a.txt.bak", false},
        {Mode::Wildcard, u"a?c", u"abc", true},
        {Mode::Wildcard, u"a?c", u"ac", false},
        {Mode::Wildcard, u"*", u"anything", true},
        {Mode::Wildcard, u"a*b*", u"a-b-c", true},
        {Mode::Wildcard, u"*ab*ab?", u"abababx", true},
        {Mode::Wildcard, u"??", u"\U0001F389", true},
        {Mode::Wildcard, u"a", u"", false},
        {Mode::Wildcard, u"\u00C9*", u"\u00E9a", false},
        {Mode::Regex, u"\\.(jpe?g|png|gif)$", u"X.JPEG", true},
        {Mode::Regex, u"a", u"bar", true},
        {Mode::Regex, u"^a$", u"bar", false},
        {Mode::Regex, u"^b", u"a\nb", false},
        {Mode::Regex, u"a$", u"a\nb", false},
        {Mode::Regex, u"a.b", u"a\nb", false},
        {Mode::Regex, u"^\\w+$", u"\u00E9t\u00E9", true},
        {Mode::Regex, u"\u00C9", u"\u00E9", false},
        {Mode::Regex, u"^[[:alpha:]]$", u"\u0416", true},
        {Mode::Regex, u"(", u"(", false},
        {Mode::Regex, u"", u"x", true},
        {Mode::Regex, u"don\\'t", u"DON'T.txt", true},
        {Mode::Regex, u"a\\<b\\>\\`", u"a<b>`", true},
        {Mode::Regex, u"^\\u00e9\\x2e[\\u0041-\\u0043]$", u"\u00E9.b", true},
        {Mode::Regex, u"[\\u00e0-\\u00ff]", u"abc", false},
        {Mode::Regex, u"[]a]", u"a", false},
        {Mode::Regex, u"^[^]$", u"\n", true},
        {Mode::Regex, u"^[^\\]a-]+$", u"b.c", true},
        {Mode::Regex, u"[\\b]|\\0", u"b0", false},
        {Mode::Regex, u"^(?:a|b){2}(?=c)(?!d)[c\\-]$", u"AbC", true},
        {Mode::Regex, u"^(.)\\1*?$", u"aaa", true},
        {Mode::Regex, u"[[:digit:]]x", u"7x", true},
        {Mode::Regex, u"\\.\\*\\/\\-", u".*/-", true},
        {Mode::Regex, u"^[A-z]+\\.txt$", u"my_notes.txt", true},
        {Mode::Regex, u"^[0-Z]+\\.txt$", u"my_notes.txt", false},
        {Mode::Regex, u"^[Z-a][X-_][^Z-a]$", u"A_b", true},
        {Mode::Regex, u"^[+--][a-][a-b-c][--/]$", u",--.", true},
        {Mode::Regex, u"^\\x41\\cJ[[:upper:]][[.-.]][[:d:]_]$", u"a\nb-_", true},
        {Mode::Regex, u"^(a)?\\1\\2(B)\\2$", u"bb", true},
        {Mode::Regex, u"^\\d.\\s$", u"\u0663\xDC80\u00A0", true},
        {Mode::Regex, u".", u"\n\r\u2028\u2029", false},
        {Mode::Regex, u"(?=i).*i", u"I", true},
        {Mode::Regex, u"(?=a)[^b]*a", u"xa", true},
        {Mode::Regex, u"(?=a)(_|a)", u"a-0", true},
        {Mode::Regex, u"^\\[.]x}[]*$", u"[1]x}", true},
        {Mode::Regex, u"[[:upper:]]", u"\u4e2d", false},
    };
    for (const auto& [mode, pattern, name, expected] : cases) {
        ItemFilter made = filter(mode, pattern);
        EXPECT_EQ(made.matches(name), expected) << to_utf8(pattern) << " on " << to_utf8(name);
        made.set_filter_action(ItemFilter::Action::Exclude);
        EXPECT_EQ(made.passes(name), pattern.empty() || !expected) << to_utf8(pattern);
    }
}

/// How often `text` stands one behind the other.
std::u16string repeated(std::u16string_view text, int count)
{
    std::u16string all;
    while (count-- > 0)
        all += text;
    return all;
}

/// A class of `count` ranges, which no name has a character of.
std::u16string long_class(int count)
{
    std::u16string ranges;
    for (int i = 0; i < count; ++i)
        ranges.append({char16_t(0x3000 + 4 * i), u'-', char16_t(0x3001 + 4 * i)});
    return u"[" + ranges + u"]";
}

TEST(ItemFilter, RunawayExpressionsEndWithoutAMatch)
{
    constexpr int longest = 500; // milliseconds of processor time
    // No single unit, which a search would look for first.
    const std::u16string none = u"[~:]";
    const std::vector<std::u16string> patterns{
        u"(a+)+$",
        u"^(a|aa)+$",
        u"(x+x+)+y|^(([a-z])+.)+[A-Z]([a-z])+$",
        u".*.*" + none,
        u"(a+)(a+)+\\1" + none,
        u"((\\w{1,9}){1,9}){1,9}" + none,
        repeated(u"[a-z0-9]*", 30) + none,
        repeated(u"[a-z0-9]*?", 100) + none,
        repeated(u"(.*)", 300) + none,
        repeated(u"(", 200) + u"a*" + repeated(u")*", 200) + none,
        u"(?:" + repeated(u"(a*)", 2000) + u"|a)*" + none,
        u"(a*)\\1(?:" + repeated(u"(a*)", 2000) + u"|a)*" + none,
        repeated(u"(?:a|" + long_class(1000) + u")*", 15) + none,
        u"(?:(?=[^" + long_class(1000).substr(1) + u"*)a|(?=.*)[a9])+" + none,
    };
    for (const std::u16string& pattern : patterns) {
        const ItemFilter made = filter(Mode::Regex, pattern);
        ASSERT_TRUE(made.is_pattern_valid()) << to_utf8(pattern.substr(0, 60));
        for (const std::u16string& name : {std::u16string(254, u'a') + u"!", std::u16string(255, u'9')}) {
            const std::clock_t begin = std::clock();
            EXPECT_FALSE(made.matches(name)) << to_utf8(pattern.substr(0, 60));
            EXPECT_LT((std::clock() - begin) * 1000 / CLOCKS_PER_SEC, longest) << to_utf8(pattern.substr(0, 60));
        }
    }
}

TEST(ItemFilter, LongSearchesAreNoRunaways)
{
    const std::u16string long_name = u"y-2" + std::u16string(245, u'x') + u"-1.txt";
    std::u16string words = u"(?:";
    for (int i = 100; i < 900; ++i)
        words += u"x" + to_utf16(std::to_string(i)) + u"|";
    for (const std::u16string& pattern : {words + u"-1)\\.txt$", std::u16string(u"(\\w+)-(\\w+)\\.txt$"),
                                          std::u16string(u".*.*-2"), std::u16string(u"(?=.*1)(?=.*t$)x")})
        EXPECT_TRUE(filter(Mode::Regex, pattern).matches(long_name)) << to_utf8(pattern.substr(0, 60));
}

TEST(ItemFilter, ChangesDropWhatWasCompiled)
{
    ItemFilter made = filter(Mode::Regex, u"B");
    EXPECT_TRUE(made.matches(u"b"));
    const ItemFilter copy = made;
    made.set_filter_pattern(u"c");
    EXPECT_FALSE(made.matches(u"b"));
    EXPECT_TRUE(copy.matches(u"b"));
    made.set_filter_mode(Mode::Extensions);
    EXPECT_TRUE(made.matches(u"b.C"));
    EXPECT_FALSE(copy == made);
}

TEST(ItemFilter, KnowsInvalidPatterns)
{
    const std::vector<std::tuple<Mode, std::u16string, bool>> cases{
        {Mode::Extensions, u"", true},     {Mode::Extensions, u"a;b c", true}, {Mode::Extensions, u"a*", false},
        {Mode::Extensions, u"a\t", false}, {Mode::Wildcard, u"*?;", true},     {Mode::Wildcard, u"a|b", false},
        {Mode::Wildcard, u"a\\b", false},  {Mode::Regex, u"[a-", false},       {Mode::Regex, u"[a-z]", true},
        {Mode::Regex, u"", true}};
    for (const auto& [mode, pattern, valid] : cases)
        EXPECT_EQ(filter(mode, pattern).is_pattern_valid(), valid) << to_utf8(pattern);
}

TEST(ItemFilter, ReadsAnyJsonThatIsAnObject)
{
    const auto rewritten = [](std::string_view json) {
        return boost::json::serialize(ItemFilter(boost::json::parse(json).as_object()).to_json());
    };
    EXPECT_EQ(rewritten("{}"), R"({"filterMode":"extensions","filterAction":"include","filterPattern":""})");
    EXPECT_EQ(rewritten(R"({"filterPattern":"A","filterMode":"?","filterAction":"?"})"),
              R"({"filterMode":"extensions","filterAction":"include","filterPattern":"a"})");
    EXPECT_EQ(rewritten(R"({"filterPattern":"A","filterMode":"regex","filterAction":"exclude"})"),
              R"({"filterMode":"regex","filterAction":"exclude","filterPattern":"A"})");
}

TEST(ExtensionsPreset, KeepsItsListInLowerCase)
{
    std::vector<ExtensionsPreset> presets(3);
    read_presets(boost::json::parse(R"([1,{"uuid":"u","name":"N","extensions":"JPG;PNG"},[]])").as_array(), presets);
    EXPECT_EQ(boost::json::serialize(presets_to_json(presets)),
              R"([{"uuid":"u","name":"N","extensions":"jpg;png"}])");
    EXPECT_THROW(ExtensionsPreset(boost::json::parse(R"({"uuid":"u","name":"N"})").as_object()), std::runtime_error);
    presets[0].make_new_uuid();
    const std::u16string first = presets[0].uuid;
    presets[0].make_new_uuid();
    EXPECT_NE(presets[0].uuid, first);
    EXPECT_TRUE(filter(Mode::Regex, u"^[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$").matches(first)) << to_utf8(first);
}

}
