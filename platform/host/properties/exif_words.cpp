#include "platform/host/properties/display_text.h"

#include <algorithm>
#include <span>

namespace platform {

namespace {

struct Word {
    std::int64_t code;
    std::u16string_view text;
};

// Numbers and meanings: Exif 2.32, "Tags relating to picture-taking conditions".
constexpr Word metering[] = {{0, u"Unknown"}, {1, u"Average"},    {2, u"Center weighted average"},
                             {3, u"Spot"},    {4, u"Multi-spot"}, {5, u"Pattern"},
                             {6, u"Partial"}, {255, u"Other"}};

constexpr Word light[] = {{0, u"Unknown"},
                          {1, u"Daylight"},
                          {2, u"Fluorescent"},
                          {3, u"Tungsten"},
                          {4, u"Flash"},
                          {9, u"Fine weather"},
                          {10, u"Cloudy"},
                          {11, u"Shade"},
                          {12, u"Daylight fluorescent"},
                          {13, u"Day white fluorescent"},
                          {14, u"Cool white fluorescent"},
                          {15, u"White fluorescent"},
                          {17, u"Standard light A"},
                          {18, u"Standard light B"},
                          {19, u"Standard light C"},
                          {20, u"D55"},
                          {21, u"D65"},
                          {22, u"D75"},
                          {23, u"D50"},
                          {24, u"ISO studio tungsten"},
                          {255, u"Other"}};

constexpr Word white_balance[] = {{0, u"Auto"}, {1, u"Manual"}};

constexpr Word orientation[] = {{1, u"Normal"},        {2, u"Flip horizontal"},  {3, u"Rotate 180 degrees"},
                                {4, u"Flip vertical"}, {5, u"Transpose"},        {6, u"Rotate 270 degrees"},
                                {7, u"Transverse"},    {8, u"Rotate 90 degrees"}};

constexpr Word program[] = {{0, u"Not defined"},       {1, u"Manual"},           {2, u"Normal"},
                            {3, u"Aperture priority"}, {4, u"Shutter priority"}, {5, u"Creative program"},
                            {6, u"Action program"},    {7, u"Portrait mode"},    {8, u"Landscape mode"}};

constexpr Word color_space[] = {{1, u"sRGB"}, {2, u"Adobe RGB"}, {0xFFFF, u"Uncalibrated"}};

constexpr Word resolution_unit[] = {{1, u"None"}, {2, u"Inches"}, {3, u"Centimeters"}};

/// Bit 0: fired; bits 1 and 2: returned light; bits 3 and 4: mode; bit 5: no flash there; bit 6: against red eyes.
std::u16string_view flash_words(std::int64_t code)
{
    const bool has_fired = (code & 1) != 0, is_auto = (code & 0x18) == 0x18, is_forced = (code & 0x18) == 8;
    const bool is_against_red_eyes = (code & 0x40) != 0;
    if ((code & 0x20) != 0)
        return u"No flash function";
    if (!has_fired)
        return is_auto ? u"No flash, auto" : (code & 0x18) == 0x10 ? u"No flash, compulsory" : u"No flash";
    if (is_against_red_eyes)
        return is_auto ? u"Flash, auto, red-eye" : is_forced ? u"Flash, compulsory, red-eye" : u"Flash, red-eye";
    return is_auto ? u"Flash, auto" : is_forced ? u"Flash, compulsory" : u"Flash";
}

std::span<const Word> words_of(Display display)
{
    switch (display) {
    case Display::Metering: return metering;
    case Display::Light: return light;
    case Display::WhiteBalance: return white_balance;
    case Display::Orientation: return orientation;
    case Display::Program: return program;
    case Display::ColorSpace: return color_space;
    case Display::ResolutionUnit: return resolution_unit;
    default: return {};
    }
}

}

std::u16string_view word_for_code(Display display, std::int64_t code)
{
    if (display == Display::Flash)
        return flash_words(code);
    const auto words = words_of(display);
    const auto found = std::ranges::find(words, code, &Word::code);
    return found == words.end() ? std::u16string_view() : found->text;
}

}
