#pragma once

#include <QLocale>

namespace platform {

/// A format for QLocale::toString with nothing but hours, minutes and seconds, the separator between them, and the
/// day half where the locale counts twelve hours: what words, zone and flexible times of day the locale's own formats
/// have is left out.
QString plain_time_form(const QLocale& locale);

}
