#include "engine/text/number_grouping.h"
#include "fuzz_input.h"
#include "platform/decimal_text.h"

#include <cstring>

namespace {

/// From the last digit on, a separator in front of every third one that has a digit before it.
std::u16string grouped_from_behind(std::u16string_view digits, std::u16string_view separator)
{
    const std::size_t first = digits.starts_with(u'-') ? 1 : 0;
    std::u16string grouped(digits);
    for (std::size_t at = digits.size(); at > first + 3;) {
        at -= 3;
        grouped.insert(at, separator);
    }
    return grouped;
}

}

/// Eight bytes of a number, one for the sign, then the separator.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    unsigned long long number = 0;
    for (int i = 0; i < 8; ++i)
        number = number << 8 | input.byte();
    const std::u16string sign = input.byte() % 2 != 0 ? u"-" : u"";
    const std::u16string separator = input.text();
    const std::string plain = std::to_string(number);
    const std::u16string digits = platform::decimal_text(number);
    require(digits == std::u16string(plain.begin(), plain.end()), "decimal digits");
    require(group_digits(sign + digits, separator) == grouped_from_behind(sign + digits, separator), "groups");
    return 0;
}
