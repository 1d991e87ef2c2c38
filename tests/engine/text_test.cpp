#include "engine/text/case_type.h"
#include "engine/text/number_grouping.h"
#include "engine/text/utf.h"
#include "engine/text/words.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

std::string bytes(std::u16string_view text)
{
    return to_utf8(text);
}

TEST(Utf, MalformedSequencesBecomeReplacementCharacters)
{
    const std::vector<std::pair<std::string, std::u16string>> cases{
        {"a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\x89z", u"a\u00E9\u20AC\U0001F389z"},
        {"\xC0\xAF", u"\uFFFD\uFFFD"},                     // overlong
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},           // a surrogate
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond the last character
        {"\xE2\x82", u"\uFFFD"},                           // cut off
        {"\xE2\x82z\xFF", u"\uFFFDz\uFFFD"},
    };
    for (const auto& [utf8, text] : cases)
        EXPECT_EQ(to_utf16(utf8), text) << testing::PrintToString(utf8);
}

TEST(Utf, LoneSurrogatesAreReplacedAndPairsStayWholeAcrossBlocks)
{
    EXPECT_EQ(bytes(u"\xD83Dx\xDC80"), "\xEF\xBF\xBDx\xEF\xBF\xBD");
    for (std::size_t front = 4094; front <= 4097; ++front)
        EXPECT_EQ(bytes(std::u16string(front, u'a') + u"\U0001F389"), std::string(front, 'a') + "\xF0\x9F\x8E\x89");
    EXPECT_EQ(bytes(std::u16string(4095, u'a') + u'\xD83D'), std::string(4095, 'a') + "\xEF\xBF\xBD");
}

TEST(CaseTypes, Convert)
{
    using Case = std::tuple<CaseType, std::u16string_view, std::u16string_view>;
    const Case cases[]{
        {CaseType::Unchanged, u"aB \u00C9", u"aB \u00C9"},
        {CaseType::UpperCase, u"stra\u00DFe \u00E9t\u00E9", u"STRA\u00DFE \u00E9T\u00E9"},
        {CaseType::LowerCase, u"README.MD", u"readme.md"},
        {CaseType::TitleCase, u"the art of war", u"The Art of War"},
        {CaseType::TitleCase, u"what is it for", u"What Is It For"},
        {CaseType::TitleCase, u"don't stop", u"Don'T Stop"},
        {CaseType::TitleCase, u"mp3player", u"Mp3Player"},
        {CaseType::TitleCase, u"A TALE OF TWO (of).", u"A Tale of Two (Of)."},
        {CaseType::TitleCase, u"of", u"Of"},
        {CaseType::TitleCase, u"ab\u0968cd", u"Ab\u0968Cd"},
        {CaseType::TitleCase, u"\u00E9tude in C", u"\u00E9tude in C"},
        {CaseType::SentenceCase, u"hello. wORLD? 3 cats", u"Hello. World? 3 Cats"},
        {CaseType::SentenceCase, u"...A 1 B", u"...A 1 b"},
        {CaseType::CamelCase, u"Report Final.txt", u"reportFinalTxt"},
        {CaseType::CamelCase, u"3rd XMLFile", u"3RdXmlFile"},
        {CaseType::PascalCase, u"my-file_name v2", u"MyFileNameV2"},
        {CaseType::PascalCase, u"12ab", u"12Ab"},
        {CaseType::SnakeCase, u"HTTPServer v2.1", u"http_server_v2_1"},
        {CaseType::SnakeCaseUpper, u"fooBar", u"FOO_BAR"},
        {CaseType::KebabCase, u"Hello, World", u"hello-world"},
        {CaseType::KebabCaseUpper, u"a b", u"A-B"},
        {CaseType::SnakeCase, u"\u00C9t\u00E9Now \U0001F389party", u"\u00C9t\u00E9_now_\U0001F389party"},
        {CaseType::CamelCase, u"-- ..", u""},
        {CaseType::SnakeCase, u"", u""},
    };
    for (const auto& [type, from, to] : cases)
        EXPECT_EQ(bytes(MVCaseTypeUtils::convert(type, from)), bytes(to)) << bytes(from);
}

TEST(CaseTypes, StringsFallBackToUnchanged)
{
    EXPECT_EQ(MVCaseTypeUtils::from_string("KebabCase"), CaseType::KebabCase);
    EXPECT_EQ(MVCaseTypeUtils::from_string("kebab-case"), CaseType::Unchanged);
    EXPECT_EQ(MVCaseTypeUtils::to_string(CaseType(11)), "Unchanged");
}

TEST(Words, Split)
{
    const std::vector<std::pair<std::u16string, std::string>> cases{
        {u"XMLFile", "XML|File"},
        {u"abc123def", "abc123|def"},
        {u"ABC", "ABC"},
        {u"aBC1d__e", "a|BC1|d|e"},
        {u"x\u00B7y\u3042\u3044", "x\u00B7y\u3042\u3044"},
        {u"\u00E9\u00C9a", "\u00E9|\u00C9a"},
        {u"7\U0001F389", "7|\U0001F389"},
        {u"\u0663a\u0664b", "\u0663|a\u0664|b"},
    };
    for (const auto& [text, expected] : cases) {
        std::string joined;
        for (const auto& word : split_words(text))
            joined += (joined.empty() ? "" : "|") + bytes(word);
        EXPECT_EQ(joined, expected) << bytes(text);
    }
}

TEST(NumberGrouping, KeepsTheSignAndTakesAnySeparator)
{
    const std::vector<std::array<std::u16string, 3>> cases{
        {u"", u",", u""},
        {u"7", u",", u"7"},
        {u"999", u",", u"999"},
        {u"1000", u",", u"1,000"},
        {u"1234567", u",", u"1,234,567"},
        {u"-12", u",", u"-12"},
        {u"-123", u",", u"-123"},
        {u"-1234", u",", u"-1,234"},
        {u"-123456", u",", u"-123,456"},
        {u"12345", u"", u"12345"},
        {u"1234567", u"\u00A0 ", u"1\u00A0 234\u00A0 567"},
    };
    for (const auto& [digits, separator, expected] : cases)
        EXPECT_EQ(bytes(group_digits(digits, separator)), bytes(expected));
}

}
