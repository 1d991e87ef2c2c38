#include "platform/locale_format.h"

#include "platform/host/user_locale.h"

namespace platform {

namespace {

/// Takes the zone field ("t") out of a time format, with the blanks, brackets or comma around it.
QString without_zone(const QString& format)
{
    constexpr QStringView around = u" \u00A0\u202F()[],";
    qsizetype start = 0;
    for (bool is_quoted = false; start < format.size() && (is_quoted || format[start] != u't'); ++start)
        is_quoted ^= format[start] == u'\'';
    qsizetype end = start;
    while (end < format.size() && (format[end] == u't' || around.contains(format[end])))
        ++end;
    while (start < end && start > 0 && around.contains(format[start - 1]))
        --start;
    const bool is_inside = start > 0 && end < format.size();
    return format.first(start) + QString(is_inside ? 1 : 0, u' ') + format.sliced(end);
}

const QString& time_format()
{
    static const QString format = without_zone(user_locale().timeFormat(QLocale::LongFormat));
    return format;
}

}

std::u16string date_text(const BrokenDownTime& time, DateStyle style)
{
    const auto form = style == DateStyle::Short ? QLocale::ShortFormat : QLocale::LongFormat;
    return user_locale().toString(to_date(time), form).toStdU16String();
}

std::u16string time_text(const BrokenDownTime& time)
{
    return user_locale().toString(to_time(time), time_format()).toStdU16String();
}

const std::u16string& thousands_separator()
{
    static const std::u16string separator = user_locale().groupSeparator().toStdU16String().substr(0, 15);
    return separator;
}

}
