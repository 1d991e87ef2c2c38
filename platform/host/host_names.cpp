#include "platform/host/host_names.h"

#include "platform/paths.h"
#include "platform/utf.h"

namespace platform {

std::u16string decode_host_bytes(std::string_view bytes, char16_t slash)
{
    std::u16string text(bytes.size(), u'\0');
    char16_t* out = text.data();
    const char* const end = bytes.data() + bytes.size();
    for (const char* in = bytes.data(); in != end;) {
        const auto byte = static_cast<unsigned char>(*in);
        if (byte < 0x80) {
            *out++ = byte == '\\' ? escaped_backslash : byte == '/' ? slash : byte;
            ++in;
        } else if (const Utf8Character character = utf8_character(in, end);
                   character.well_formed && character.code != escaped_backslash) {
            out = put_utf16(out, character.code);
            in += character.length;
        } else {
            *out++ = static_cast<char16_t>(0xDC00 + byte);
            ++in;
        }
    }
    text.resize(static_cast<std::size_t>(out - text.data()));
    return text;
}

void append_host_bytes(std::string& bytes, std::u16string_view units, char backslash)
{
    const std::size_t before = bytes.size();
    bytes.resize(before + 3 * units.size());
    char* out = bytes.data() + before;
    for (std::size_t i = 0; i < units.size(); ++i) {
        const char16_t unit = units[i];
        if (unit == u'\\')
            *out++ = backslash;
        else if (unit == escaped_backslash)
            *out++ = '\\';
        else if (!is_surrogate(unit))
            out = put_utf8(out, unit);
        else if (is_high_surrogate(unit) && i + 1 < units.size() && is_low_surrogate(units[i + 1]))
            out = put_utf8(out, from_surrogates(unit, units[++i]));
        else if (unit >= 0xDC80 && unit <= 0xDCFF)
            *out++ = static_cast<char>(unit - 0xDC00);
        else
            out = put_utf8(out, 0xFFFD);
    }
    bytes.resize(static_cast<std::size_t>(out - bytes.data()));
}

std::u16string from_host_name(std::string_view name)
{
    return decode_host_bytes(name, u'/');
}

std::strong_ordering compare_names(std::u16string_view left, std::u16string_view right)
{
    return left <=> right;
}

void append_host_name(std::string& bytes, std::u16string_view name)
{
    append_host_bytes(bytes, name, '\\');
}

}
