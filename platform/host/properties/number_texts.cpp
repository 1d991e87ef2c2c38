#include "platform/host/properties/display_text.h"
#include "platform/host/user_locale.h"
#include "platform/local_time.h"

#include <array>
#include <cmath>

namespace platform {

std::u16string number_text(double value, int decimals)
{
    // Adding 0 turns a -0 into 0.
    const double scale = std::pow(10, decimals);
    QString text = user_locale().toString(std::round(value * scale) / scale + 0.0, 'f', decimals);
    if (decimals == 0)
        return text.toStdU16String();
    while (text.endsWith(user_locale().zeroDigit()))
        text.chop(user_locale().zeroDigit().size());
    if (text.endsWith(user_locale().decimalPoint()))
        text.chop(user_locale().decimalPoint().size());
    return text.toStdU16String();
}

std::u16string size_text(double bytes)
{
    constexpr std::array units{u"bytes", u"KB", u"MB", u"GB", u"TB", u"PB", u"EB"};
    std::size_t unit = 0;
    constexpr double step = 1024, widest = 999.5;
    for (; bytes >= (unit == 0 ? step : widest) && unit + 1 < units.size(); ++unit)
        bytes /= step;
    const int decimals = unit == 0 || bytes >= 99.95 ? 0 : bytes >= 9.995 ? 1 : 2;
    const bool is_one_byte = unit == 0 && bytes == 1;
    return number_text(bytes, decimals) + u" " + (is_one_byte ? u"byte" : units[unit]);
}

std::u16string duration_text(std::int64_t ticks)
{
    constexpr std::int64_t seconds_per_hour = 3600;
    const std::int64_t seconds = (ticks + ticks_per_second / 2) / ticks_per_second;
    const auto two_digits = [](std::int64_t number) {
        return std::u16string{static_cast<char16_t>(u'0' + number / 10), static_cast<char16_t>(u'0' + number % 10)};
    };
    const std::int64_t hours = seconds / seconds_per_hour;
    const std::u16string hour_text = hours < 100 ? two_digits(hours) : to_text(hours).value_or(u"");
    return hour_text + u":" + two_digits(seconds / 60 % 60) + u":" + two_digits(seconds % 60);
}

}
