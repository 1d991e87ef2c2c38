#include "engine/text/letters.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <locale>

namespace {

/// The zeros of all scripts but ASCII; each is followed by the digits one to nine (Unicode 14, category Nd).
constexpr std::array<char16_t, 36> zeros{0x0660, 0x06F0, 0x07C0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0BE6,
                                         0x0C66, 0x0CE6, 0x0D66, 0x0DE6, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x1090,
                                         0x17E0, 0x1810, 0x1946, 0x19D0, 0x1A80, 0x1A90, 0x1B50, 0x1BB0, 0x1C40,
                                         0x1C50, 0xA620, 0xA8D0, 0xA900, 0xA9D0, 0xA9F0, 0xAA50, 0xABF0, 0xFF10};

bool is_other_digit(char16_t unit)
{
    const auto after = std::ranges::upper_bound(zeros, unit);
    return after != zeros.begin() && unit - *std::prev(after) < 10;
}

/// Unicode's classes from the C library's own locale of that name, which every glibc since 2.35 carries.
bool has_class(char16_t unit, std::ctype_base::mask mask)
{
    static const std::locale locale(std::locale::classic(), new std::ctype_byname<wchar_t>("C.UTF-8"));
    static const auto& facet = std::use_facet<std::ctype<wchar_t>>(locale);
    return facet.is(mask, static_cast<wchar_t>(unit));
}

}

bool is_digit(char16_t unit)
{
    return unit < 0x80 ? is_ascii_digit(unit) : is_other_digit(unit);
}

bool is_letter(char16_t unit)
{
    // The C library takes the digits of other scripts for letters, since its digits must be ASCII.
    return unit < 0x80 ? is_ascii_letter(unit) : has_class(unit, std::ctype_base::alpha) && !is_other_digit(unit);
}

bool is_lower(char16_t unit)
{
    return unit < 0x80 ? unit >= u'a' && unit <= u'z' : has_class(unit, std::ctype_base::lower);
}

bool is_upper(char16_t unit)
{
    return unit < 0x80 ? unit >= u'A' && unit <= u'Z' : has_class(unit, std::ctype_base::upper);
}

bool is_alphanumeric(char16_t unit)
{
    return unit < 0x80 ? is_ascii_letter(unit) || is_ascii_digit(unit) : has_class(unit, std::ctype_base::alnum);
}

std::u16string lower_cased(std::u16string_view text)
{
    std::u16string result(text);
    std::ranges::transform(result, result.begin(), to_lower);
    return result;
}

std::u16string upper_cased(std::u16string_view text)
{
    std::u16string result(text);
    std::ranges::transform(result, result.begin(), to_upper);
    return result;
}
