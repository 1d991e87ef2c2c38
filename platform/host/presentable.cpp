#include "platform/paths.h"

#include "platform/host/host_names.h"
#include "platform/utf.h"

namespace platform {

namespace {

constexpr bool is_plain(char16_t unit)
{
    return static_cast<char16_t>(unit - 0xD800) >= 0x800 && unit != escaped_backslash;
}

/// Length of the run of plain units at the front of `units`, tested block by block: nearly all text is plain.
std::size_t plain_run(const char16_t* units, std::size_t count)
{
    constexpr std::size_t block = 64;
    std::size_t i = 0;
    for (; i + block <= count; i += block) {
        unsigned found = 0;
        for (std::size_t k = 0; k < block; ++k)
            found |= !is_plain(units[i + k]);
        if (found != 0)
            break;
    }
    while (i < count && is_plain(units[i]))
        ++i;
    return i;
}

}

void make_presentable(std::u16string& text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (is_plain(text[i]))
            i += plain_run(text.data() + i, text.size() - i);
        if (i == text.size())
            return;
        char16_t& unit = text[i];
        if (is_high_surrogate(unit) && i + 1 < text.size() && is_low_surrogate(text[i + 1]))
            ++i;
        else
            unit = unit == escaped_backslash ? u'\\' : u'\uFFFD';
    }
}

}
