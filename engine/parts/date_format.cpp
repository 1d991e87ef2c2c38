#include "engine/parts/date_part.h"
#include "platform/decimal_text.h"
#include "platform/local_time.h"
#include "platform/locale_format.h"

namespace {

using platform::BrokenDownTime;
using platform::decimal_text;
using DateFormat = ItemPartDate::DateFormat;

std::u16string iso_text(const BrokenDownTime& time, char16_t between, char16_t in_time)
{
    const auto two_digits = [](unsigned number) { return decimal_text(number, 2); };
    const std::u16string date =
        decimal_text(time.year, 4) + u'-' + two_digits(time.month) + u'-' + two_digits(time.day);
    return date + between + two_digits(time.hour) + in_time + two_digits(time.minute) + in_time +
           two_digits(time.second);
}

std::u16string with_time(std::u16string date, const BrokenDownTime& time)
{
    const std::u16string time_text = platform::time_text(time);
    return time_text.empty() ? date : date.append(u" ").append(time_text);
}

}

std::u16string format_date(const BrokenDownTime& time, DateFormat format, bool add_leading_zeros)
{
    const auto date = [&](std::u16string_view picture) { return platform::date_by_picture(time, picture); };
    const auto hour = [&](std::u16string_view picture) { return platform::time_by_picture(time, picture); };
    const bool zeros = add_leading_zeros;
    switch (format) {
    case DateFormat::ShortDate: return platform::date_text(time, platform::DateStyle::Short);
    case DateFormat::LongDate: return platform::date_text(time, platform::DateStyle::Long);
    case DateFormat::ShortDateTime: return with_time(platform::date_text(time, platform::DateStyle::Short), time);
    case DateFormat::LongDateTime: return with_time(platform::date_text(time, platform::DateStyle::Long), time);
    case DateFormat::IsoDateTime: return iso_text(time, u' ', u':');
    case DateFormat::IsoDateTimeFilename: return iso_text(time, u'_', u'-');
    case DateFormat::Year4: return date(u"yyyy");
    case DateFormat::Year2: return date(u"yy");
    case DateFormat::MonthFull: return date(u"MMMM");
    case DateFormat::MonthAbr: return date(u"MMM");
    case DateFormat::MonthDigits: return date(zeros ? u"MM" : u"M");
    case DateFormat::DateDigits: return date(zeros ? u"dd" : u"d");
    case DateFormat::DayFull: return date(u"dddd");
    case DateFormat::DayAbr: return date(u"ddd");
    case DateFormat::Day0To6: return decimal_text(time.day_of_week);
    case DateFormat::Day1To7: return decimal_text(time.day_of_week == 0 ? 7u : time.day_of_week);
    case DateFormat::Hour24: return hour(zeros ? u"HH" : u"H");
    case DateFormat::Hour12: return hour(zeros ? u"hh" : u"h");
    case DateFormat::Min: return hour(u"mm");
    case DateFormat::Sec: return hour(u"ss");
    case DateFormat::AmPm: return hour(u"tt");
    }
    return {};
}
