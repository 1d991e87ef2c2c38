#include "platform/locale_format.h"

#include "platform/decimal_text.h"
#include "platform/host/picture.h"
#include "platform/host/user_locale.h"

#include <algorithm>

namespace platform {

namespace {

bool has_day_number(std::u16string_view picture)
{
    bool result = false;
    expand_picture(picture, [&result](char16_t letter, std::size_t count) {
        result |= letter == u'd' && count <= 2;
        return std::u16string();
    });
    return result;
}

std::u16string day_field(const QDate& date, std::size_t count)
{
    if (count <= 2)
        return decimal_text(static_cast<unsigned>(date.day()), count);
    const auto form = count == 3 ? QLocale::ShortFormat : QLocale::LongFormat;
    return user_locale().dayName(date.dayOfWeek(), form).toStdU16String();
}

std::u16string month_field(const QDate& date, std::size_t count, bool goes_with_day)
{
    if (count <= 2)
        return decimal_text(static_cast<unsigned>(date.month()), count);
    const auto form = count == 3 ? QLocale::ShortFormat : QLocale::LongFormat;
    const QString name = goes_with_day ? user_locale().monthName(date.month(), form)
                                       : user_locale().standaloneMonthName(date.month(), form);
    return name.toStdU16String();
}

std::u16string year_field(const QDate& date, std::size_t count)
{
    const auto year = static_cast<unsigned>(date.year());
    return count <= 2 ? decimal_text(year % 100, count) : decimal_text(year, 4);
}

std::u16string day_half_field(const QTime& time, std::size_t count)
{
    const QString name = time.hour() < 12 ? user_locale().amText() : user_locale().pmText();
    const bool is_pair = name.size() >= 2 && name[0].isHighSurrogate();
    return (count == 1 ? name.left(is_pair ? 2 : 1) : name).toStdU16String();
}

}

std::u16string date_by_picture(const BrokenDownTime& time, std::u16string_view picture)
{
    const QDate date = to_date(time);
    if (!date.isValid())
        return {};
    const bool goes_with_day = has_day_number(picture);
    return expand_picture(picture, [&](char16_t letter, std::size_t count) -> std::optional<std::u16string> {
        switch (letter) {
        case u'd': return day_field(date, count);
        case u'M': return month_field(date, count, goes_with_day);
        case u'y': return year_field(date, count);
        case u'g': return std::u16string();
        default: return {};
        }
    });
}

std::u16string time_by_picture(const BrokenDownTime& time, std::u16string_view picture)
{
    const QTime moment = to_time(time);
    if (!moment.isValid())
        return {};
    const auto number = [](int value, std::size_t count) {
        return decimal_text(static_cast<unsigned>(value), std::min<std::size_t>(count, 2));
    };
    return expand_picture(picture, [&](char16_t letter, std::size_t count) -> std::optional<std::u16string> {
        switch (letter) {
        case u'h': return number((moment.hour() + 11) % 12 + 1, count);
        case u'H': return number(moment.hour(), count);
        case u'm': return number(moment.minute(), count);
        case u's': return number(moment.second(), count);
        case u't': return day_half_field(moment, count);
        default: return {};
        }
    });
}

}
