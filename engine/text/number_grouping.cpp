#include "engine/text/number_grouping.h"

#include "platform/locale_format.h"

#include <algorithm>

std::u16string group_digits(std::u16string_view digits, std::u16string_view separator)
{
    std::size_t first = digits.size() % 3 == 0 ? 3 : digits.size() % 3;
    if (digits.starts_with(u'-') && first == 1)
        first = 4;
    first = std::min(first, digits.size());
    std::u16string grouped(digits.substr(0, first));
    for (std::size_t at = first; at < digits.size(); at += 3)
        grouped.append(separator).append(digits.substr(at, 3));
    return grouped;
}

std::u16string group_digits(std::u16string_view digits)
{
    return group_digits(digits, platform::thousands_separator());
}
