#include "platform/host/properties/display_text.h"

#include "platform/local_time.h"
#include "platform/locale_format.h"

#include <cmath>

namespace platform {

namespace {

/// Rounded, without groups.
std::u16string digits(double number)
{
    return to_text(std::round(number)).value_or(u"");
}

std::u16string moment_text(const PropertyValue& value)
{
    const auto* const moment = std::get_if<FileTimeValue>(&value);
    const auto time = moment ? to_local_time(moment->ticks) : std::nullopt;
    if (!time)
        return {};
    return date_text(*time, DateStyle::Short) + u" " + time_text(*time);
}

std::u16string channels_text(std::int64_t count)
{
    const std::u16string_view word = count == 1 ? u" (mono)" : count == 2 ? u" (stereo)" : u"";
    return number_text(static_cast<double>(count), 0).append(word);
}

std::u16string four_cc_text(std::int64_t code)
{
    std::u16string result;
    for (int shift = 0; shift < 32; shift += 8) {
        const auto unit = static_cast<char16_t>((code >> shift) & 0xFF);
        if (unit < u' ' || unit > u'~')
            return number_text(static_cast<double>(code), 0);
        result += unit;
    }
    return result;
}

/// The documented limits of the five stars.
std::u16string stars_text(std::int64_t rating)
{
    if (rating < 1)
        return u"Unrated";
    const int stars = rating < 13 ? 1 : rating < 38 ? 2 : rating < 63 ? 3 : rating < 88 ? 4 : 5;
    return stars == 1 ? u"1 star" : number_text(stars, 0) + u" stars";
}

/// The letters of the documented file attributes.
std::u16string attributes_text(std::int64_t flags)
{
    constexpr std::pair<std::int64_t, char16_t> letters[] = {{1, u'R'},    {2, u'H'},    {4, u'S'},
                                                             {0x10, u'D'}, {0x20, u'A'}, {0x400, u'L'}};
    std::u16string result;
    for (const auto& [flag, letter] : letters)
        if ((flags & flag) != 0)
            result += letter;
    return result;
}

std::u16string seconds_text(double seconds)
{
    if (seconds > 0 && seconds < 0.3)
        return u"1/" + digits(1 / seconds) + u" sec.";
    return number_text(seconds, 1) + u" sec.";
}

std::u16string f_number_text(double number)
{
    return u"f/" + number_text(number, 1);
}

std::u16string steps_text(double steps)
{
    return (steps > 0 ? u"+" : u"") + number_text(steps, 1) + u" step";
}

std::u16string rate_text(double bits_a_second)
{
    return number_text(std::round(bits_a_second / 1000), 0) + u" kbps";
}

/// Empty when the display is not one of numbers.
std::u16string number_display(double number, Display display)
{
    const auto whole = static_cast<std::int64_t>(number);
    switch (display) {
    case Display::Number: return number_text(number, 2);
    case Display::Size: return size_text(number);
    case Display::Duration: return duration_text(whole);
    case Display::YesNo: return number != 0 ? u"Yes" : u"No";
    case Display::Pixels: return digits(number) + u" pixels";
    case Display::Resolution: return digits(number) + u" dpi";
    case Display::MetricResolution: return number_text(number, 1) + u" dots/cm";
    case Display::BitRate: return rate_text(number);
    case Display::SampleRate: return number_text(number / 1000, 3) + u" kHz";
    case Display::Bits: return number_text(number, 0) + u" bit";
    case Display::Channels: return channels_text(whole);
    case Display::FrameRate: return number_text(number / 1000, 2) + u" frames/second";
    case Display::FourCc: return four_cc_text(whole);
    case Display::Degrees: return number_text(number, 0) + u"\u00B0";
    case Display::Stars: return stars_text(whole);
    case Display::Attributes: return attributes_text(whole);
    case Display::Seconds: return seconds_text(number);
    case Display::FNumber: return f_number_text(number);
    case Display::ApexAperture: return f_number_text(std::exp2(number / 2));
    case Display::ApexSpeed: return seconds_text(std::exp2(-number));
    case Display::Steps: return steps_text(number);
    case Display::Millimetres: return number_text(number, 1) + u" mm";
    case Display::Metres: return number_text(number, 2) + u" m";
    case Display::Iso: return u"ISO-" + digits(number);
    default: return std::u16string(word_for_code(display, whole));
    }
}

}

std::u16string text_for_display(const PropertyValue& value, Display display)
{
    std::u16string text;
    const auto number = to_double(value);
    constexpr double largest = 1e18;
    if (display == Display::Moment)
        text = moment_text(value);
    else if (display != Display::Plain && number && std::fabs(*number) < largest)
        text = number_display(*number, display);
    return text.empty() ? to_text(value).value_or(u"") : text;
}

}
