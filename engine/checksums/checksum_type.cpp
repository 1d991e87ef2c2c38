#include "engine/checksums/checksum_type.h"

#include <algorithm>

std::span<const ChecksumType> all_checksum_types()
{
    static constexpr auto types = [] {
        std::array<ChecksumType, checksum_types.size()> values{};
        std::ranges::transform(checksum_types, values.begin(), &ChecksumRow::value);
        return values;
    }();
    return types;
}

std::string_view checksum_display_name(ChecksumType type)
{
    const auto* row = find_value(checksum_types, type);
    return row ? row->display : std::string_view();
}

std::u16string upper_case_hex(std::u16string_view hex)
{
    std::u16string result(hex);
    for (char16_t& digit : result)
        if (digit >= u'a' && digit <= u'f')
            digit = static_cast<char16_t>(digit - 32);
    return result;
}
