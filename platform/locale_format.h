#pragma once

#include "platform/local_time.h"

#include <string>
#include <string_view>

/// Texts in the user's locale (LC_ALL, LC_TIME, LC_NUMERIC, LANG), read once a process. Safe from any thread.
namespace platform {

enum class DateStyle { Short, Long };

/// The locale's short or long date. Empty when the date doesn't exist.
std::u16string date_text(const BrokenDownTime& time, DateStyle style);

/// The locale's time of day with seconds, on its clock of 12 or 24 hours, without words or a zone. Empty when the
/// time doesn't exist.
std::u16string time_text(const BrokenDownTime& time);

/// A date by a picture: d dd (day), ddd dddd (weekday's short and full name), M MM, MMM MMMM (month's names, in the
/// form that goes with a day number when the picture has one), y yy (year of the century), yyyy (whole year), g gg
/// (era; nothing here, as the calendar's own years have none). A longer run counts as the longest form, yyy as yyyy.
/// Numbers have ASCII digits. Text in single quotes stands as it is, with two quotes in it for one; any other
/// character too. Empty when the date doesn't exist; the weekday is that of the date, not of `day_of_week`.
/// Source: "Day, Month, Year, and Era Format Pictures", Windows documentation.
std::u16string date_by_picture(const BrokenDownTime& time, std::u16string_view picture);

/// A time by a picture: h hh (12 hours), H HH (24 hours), m mm, s ss, t (first character of the day half's name),
/// tt (the whole name). All else as in `date_by_picture`. Source: "Hour, Minute, and Second Format Pictures",
/// Windows documentation.
std::u16string time_by_picture(const BrokenDownTime& time, std::u16string_view picture);

/// The separator between groups of three digits; 15 units at the most, can be empty.
const std::u16string& thousands_separator();

}
