#include "platform/host/properties/leading_numbers.h"

namespace platform {

namespace {

std::u16string_view leading_digits(std::u16string_view text)
{
    return text.substr(0, text.find_first_not_of(u"0123456789"));
}

}

std::optional<std::uint64_t> leading_number(std::u16string_view text)
{
    constexpr std::size_t most_digits = 9;
    const std::u16string_view digits = leading_digits(text);
    if (digits.empty() || digits.size() > most_digits)
        return {};
    std::uint64_t number = 0;
    for (const char16_t digit : digits)
        number = number * 10 + static_cast<std::uint64_t>(digit - u'0');
    return number;
}

std::optional<std::uint64_t> leading_year(std::u16string_view text)
{
    constexpr std::size_t year = 4;
    constexpr std::u16string_view zone = u"UTC ";
    if (text.starts_with(zone))
        text.remove_prefix(zone.size());
    const std::u16string_view digits = leading_digits(text);
    if (digits.size() < year)
        return {};
    const auto number = leading_number(digits.substr(0, year));
    return number == 0 ? std::nullopt : number;
}

}
