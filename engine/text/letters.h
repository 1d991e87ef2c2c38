#pragma once

#include <string>
#include <string_view>

/// Classes and case of single UTF-16 units. The classes are Unicode's (a surrogate is in none of them); case exists
/// for ASCII letters only. Nothing here depends on the process's locale, and all of it is safe from any thread.

constexpr char16_t to_lower(char16_t unit)
{
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
}

constexpr char16_t to_upper(char16_t unit)
{
    return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32) : unit;
}

constexpr bool is_ascii_letter(char16_t unit)
{
    return to_lower(unit) >= u'a' && to_lower(unit) <= u'z';
}

constexpr bool is_ascii_digit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

/// Decimal digits of all scripts (Unicode category Nd).
bool is_digit(char16_t unit);

bool is_letter(char16_t unit);
bool is_lower(char16_t unit);
bool is_upper(char16_t unit);

/// Letters and digits.
bool is_alphanumeric(char16_t unit);

/// The text with its ASCII letters in lower or upper case.
std::u16string lower_cased(std::u16string_view text);
std::u16string upper_cased(std::u16string_view text);
