#pragma once

#include "platform/host/properties/property_table.h"

namespace platform {

/// The value as people read it, in the user's locale. A value that doesn't fit the way of display is shown plainly.
std::u16string text_for_display(const PropertyValue& value, Display display);

/// The word for one of the numbers that EXIF has words for; empty for a number without a word and for any other
/// display.
std::u16string_view word_for_code(Display display, std::int64_t code);

/// "1.5 MB"; with powers of 1024 and three digits.
std::u16string size_text(double bytes);

/// "00:03:12", rounded to the second.
std::u16string duration_text(std::int64_t ticks);

/// In the user's locale, with digits in groups and `decimals` at the most.
std::u16string number_text(double value, int decimals);

}
