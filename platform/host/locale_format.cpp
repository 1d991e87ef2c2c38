#include "platform/locale_format.h"

#include "platform/host/time_form.h"
#include "platform/host/user_locale.h"

namespace platform {

namespace {

const QString& time_format()
{
    static const QString format = plain_time_form(user_locale());
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
