#include "engine/filters/name_expression.h"
#include "engine/text/letters.h"
#include "engine/text/utf.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <random>
#include <regex>
#include <string>
#include <utility>
#include <vector>

namespace {

TEST(NameExpression, TellsWhereItGoesWrong)
{
    // A number sign stands before the place.
    const char16_t* const cases[]{u"a(#*ACCEPT)",  u"(#*F)",     u"\\x#{41}", u"\\x4#",  u"x[#a-\\d]", u"[#\\d-z]",
                                  u"[x#[:d:]-z]",  u"[#a-Z]",    u"a#{2",     u"a{#,3}", u"a{#x}",     u"a{# 1}",
                                  u"a#{3,2}",      u"#{1}",      u"a+#+",     u"^#*",    u"(?=a)#*",   u"a|#?",
                                  u"b#(",          u"(a)#)",     u"[a-#",     u"#(?i)a", u"#(?<=a)b",  u"\\#Qa",
                                  u"a\\#",         u"\\u12#g4",  u"\\c#1",    u"[\\#1]", u"\\#01",     u"#\\2(a)",
                                  u"[[:#ascii:]]", u"[[=#ab=]]", u"\\#k",     u"[\\#B]"};
    for (std::u16string pattern : cases) {
        const std::size_t place = pattern.find(u'#');
        pattern.erase(place, 1);
        EXPECT_EQ(NameExpression(pattern).error_offset(), std::optional(place)) << to_utf8(pattern);
    }
    const NameExpression large(std::u16string(70'000, u'a'));
    EXPECT_TRUE(!large.is_valid() && !large.error_offset()) << "no one place";
    for (const auto* pattern : {u"", u"[a-z]|", u"()a{0,70000}", u"\\1(?:(a\\1))?", u"[\\d-][\\]]\\0"})
        EXPECT_TRUE(NameExpression(pattern).is_valid()) << to_utf8(pattern);
}

class RandomPatterns
{
public:
    std::u16string pattern()
    {
        std::u16string made = one_of({u"", u"^"});
        for (unsigned left = 1 + below(3); left > 0; --left)
            made += below(3) ? term() : u"(" + term() + u"|" + term() + u")" + one_of({u"", u"*", u"+?"});
        return made + one_of({u"", u"$"});
    }

    std::u16string name()
    {
        std::u16string made;
        for (unsigned left = below(7); left > 0; --left)
            made += unit();
        return made;
    }

private:
    unsigned below(unsigned end) { return static_cast<unsigned>(random_() % end); }

    std::u16string one_of(const std::vector<std::u16string>& choices)
    {
        return choices[below(static_cast<unsigned>(choices.size()))];
    }

    /// Printable ASCII, most of it around the ends of both alphabets.
    char16_t unit()
    {
        const std::u16string_view near = u"09@AZ[_`az{.-";
        return below(2) ? near[below(static_cast<unsigned>(near.size()))] : static_cast<char16_t>(33 + below(94));
    }

    std::u16string literal()
    {
        const char16_t made = unit();
        return is_ascii_letter(made) || is_ascii_digit(made) ? std::u16string{made} : std::u16string{u'\\', made};
    }

    std::u16string member() { return literal() + (below(2) ? u"-" + literal() : u""); }

    std::u16string term()
    {
        const std::u16string made = below(4) ? one_of({u"[", u"[^"}) + member() + member() + u"]" : literal();
        return one_of({made, made, u"\\w", u"\\D", u"\\s", u".", u"[[:upper:]]"}) +
               one_of({u"", u"", u"*", u"+", u"?", u"{2}", u"{1,2}?"});
    }

    std::mt19937 random_{2024};
};

/// Empty when it is invalid.
std::optional<bool> standard_finds(const std::u16string& pattern, const std::u16string& name)
{
    try {
        const std::wregex expression(std::wstring(pattern.begin(), pattern.end()),
                                     std::regex::ECMAScript | std::regex::icase);
        return std::regex_search(std::wstring(name.begin(), name.end()), expression);
    } catch (const std::regex_error&) {
        return {};
    }
}

TEST(NameExpression, FindsWhatTheStandardLibraryFinds)
{
    RandomPatterns random;
    int found = 0;
    for (int i = 0; i < 3000; ++i) {
        const std::u16string pattern = random.pattern(), name = random.name();
        const NameExpression expression(pattern);
        const std::optional ours = expression.is_valid() ? std::optional(expression.is_found_in(name)) : std::nullopt;
        EXPECT_EQ(ours, standard_finds(pattern, name)) << to_utf8(pattern) << " on " << to_utf8(name);
        found += ours.value_or(false);
    }
    EXPECT_GT(found, 300);
}

}
