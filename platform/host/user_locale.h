#pragma once

#include "platform/local_time.h"

#include <QDate>
#include <QLocale>
#include <QTime>

namespace platform {

/// The user's locale, read at the first call; safe from any thread.
inline const QLocale& user_locale()
{
    static const QLocale locale = QLocale::system();
    return locale;
}

/// Invalid when the date doesn't exist.
inline QDate to_date(const BrokenDownTime& time)
{
    return QDate(time.year, time.month, time.day);
}

/// Invalid when the time of day doesn't exist.
inline QTime to_time(const BrokenDownTime& time)
{
    return QTime(time.hour, time.minute, time.second, time.millisecond);
}

}
