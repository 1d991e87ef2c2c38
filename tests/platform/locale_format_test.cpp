#include "platform/host/time_form.h"
#include "platform/locale_format.h"
#include "platform/paths.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTime>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <set>
#include <thread>
#include <vector>

using platform::BrokenDownTime;
using platform::DateStyle;

namespace {

constexpr BrokenDownTime march{2024, 3, 2, 5, 19, 9, 3, 7};

/// What `text` gives in a process that starts with this locale: the locale is read once a process.
std::string in_locale(const char* name, const std::function<std::u16string()>& text)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        return "no pipe";
    const pid_t child = fork();
    if (child == 0) {
        setenv("LC_ALL", name, 1);
        std::string bytes;
        platform::append_host_name(bytes, text());
        _exit(write(ends[1], bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) ? 0 : 1);
    }
    close(ends[1]);
    std::string result(1000, '\0');
    result.resize(static_cast<std::size_t>(std::max<ssize_t>(read(ends[0], result.data(), result.size()), 0)));
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return status == 0 ? result : "failed";
}

struct Row {
    const char* locale;
    std::u16string_view picture;
    const char* expected;
    BrokenDownTime time = march;
};

TEST(LocaleFormat, DatePictures)
{
    const std::vector<Row> rows{
        {"en_US.UTF-8", u"d|dd|ddd|dddd|ddddd", "5|05|Tue|Tuesday|Tuesday"},
        {"en_US.UTF-8", u"M|MM|MMM|MMMM|MMMMM", "3|03|Mar|March|March"},
        {"en_US.UTF-8", u"y|yy|yyy|yyyy|yyyyy", "24|24|2024|2024|2024"},
        {"en_US.UTF-8", u"y yy yyyy", "5 05 2005", {2005, 1, 0, 1}},
        {"en_US.UTF-8", u"yy yyyy", "27 30827", {30827, 1, 0, 1}},
        {"en_US.UTF-8", u"dddd", "Friday", {1999, 12, 0, 31}},
        {"en_US.UTF-8", u"[g gg] hH:s", "[ ] hH:s"},
        {"en_US.UTF-8", u"'day' d 'o''clock'''dd''d 'M", "day 5 o'clock'055 M"},
        {"en_US.UTF-8", u"d", "", {2023, 2, 0, 29}},
        {"de_DE.UTF-8", u"ddd dddd MMMM", "Di. Dienstag März"},
        {"cs_CZ.UTF-8", u"d MMMM", "5 března"},
        {"cs_CZ.UTF-8", u"ddd MMMM 'd' yyyy", "út březen d 2024"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(in_locale(row.locale, [&] { return platform::date_by_picture(row.time, row.picture); }),
                  row.expected);
}

TEST(LocaleFormat, TimePictures)
{
    const std::vector<Row> rows{
        {"en_US.UTF-8", u"h hh hhh H HH m mm s ss", "7 07 07 19 19 9 09 3 03"},
        {"en_US.UTF-8", u"h:HH t tt ttt", "12:00 A AM AM", {2024, 1, 1, 1, 0}},
        {"en_US.UTF-8", u"htt h 'tt' d", "12PM 12 tt d", {2024, 1, 1, 1, 12}},
        {"en_US.UTF-8", u"H", "", {2024, 1, 1, 1, 24}},
        {"ja_JP.UTF-8", u"t tt", "午 午後"},
        {"en_CA.UTF-8", u"tt", "p.m."},
    };
    for (const Row& row : rows)
        EXPECT_EQ(in_locale(row.locale, [&] { return platform::time_by_picture(row.time, row.picture); }),
                  row.expected);
}

/// Short date, long date, time and separator.
std::u16string styles(const BrokenDownTime& time)
{
    return platform::date_text(time, DateStyle::Short) + u"|" + platform::date_text(time, DateStyle::Long) + u"|" +
           platform::time_text(time) + u"|" + platform::thousands_separator();
}

TEST(LocaleFormat, StylesOfTheLocale)
{
    const std::vector<std::pair<const char*, std::string>> rows{
        {"C", "5 Mar 2024|Tuesday, 5 March 2024|19:09:03|,"},
        {"en_US.UTF-8", "3/5/24|Tuesday, March 5, 2024|7:09:03 PM|,"},
        {"de_DE.UTF-8", "05.03.24|Dienstag, 5. März 2024|19:09:03|."},
        {"en_CA.UTF-8", "2024-03-05|Tuesday, March 5, 2024|7:09:03 p.m.|,"},
        {"fr_CA.UTF-8", "2024-03-05|mardi 5 mars 2024|19:09:03|\u00A0"},
        {"fi_FI.UTF-8", "5.3.2024|tiistaina 5. maaliskuuta 2024|19.09.03|\u00A0"},
        {"fa_IR.UTF-8", "۲۰۲۴/۳/۵|سه\u200Cشنبه ۵ مارس ۲۰۲۴|۱۹:۰۹:۰۳|\u066C"},
        {"zh_TW.UTF-8", "2024/3/5|2024年3月5日 星期二|下午7:09:03|,"},
    };
    for (const auto& [locale, expected] : rows)
        EXPECT_EQ(in_locale(locale, [] { return styles(march); }), expected);
    EXPECT_EQ(in_locale("C", [] { return styles({2023, 2, 0, 29, 12, 60}); }), "|||,");
}

TEST(LocaleFormat, TimesHaveNoWordsInAnyLocale)
{
    const QRegularExpression plain("^\\s?\\p{Nd}{1,2}([:.])\\p{Nd}{2}\\1\\p{Nd}{2}\\s?$",
                                   QRegularExpression::UseUnicodePropertiesOption);
    const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    EXPECT_GT(locales.size(), 500);
    for (const QLocale& locale : locales) {
        const QString form = platform::plain_time_form(locale);
        std::set<QString> texts;
        for (const int hour : {0, 7, 12, 19}) {
            QString text = locale.toString(QTime(hour, 9, 3), form);
            texts.insert(text);
            text.remove(hour < 12 ? locale.amText() : locale.pmText());
            EXPECT_TRUE(plain.match(text).hasMatch()) << locale.name().toStdString() << ": " << text.toStdString();
        }
        EXPECT_EQ(texts.size(), 4u) << locale.name().toStdString();
    }
}

TEST(LocaleFormat, FirstUseOnSeveralThreads)
{
    const auto all_agree = [] {
        std::array<std::u16string, 4> results;
        {
            std::array<std::jthread, 4> threads;
            std::size_t next = 0;
            for (std::u16string& result : results)
                threads[next++] = std::jthread([&result] { result = styles(march); });
        }
        return std::ranges::count(results, results[0]) == 4 ? results[0] : u"differ";
    };
    EXPECT_EQ(in_locale("en_US.UTF-8", all_agree), "3/5/24|Tuesday, March 5, 2024|7:09:03 PM|,");
}

}
