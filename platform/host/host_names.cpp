#include "platform/host/host_names.h"

#include "platform/host/utf16.h"
#include "platform/paths.h"

#include <array>

namespace platform {

namespace {

struct Sequence {
    std::size_t length = 0;
    char32_t code = 0;
};

/// The character of two to four bytes at `bytes`, with length 0 when they aren't well-formed UTF-8.
Sequence multibyte_sequence(const unsigned char* bytes, const unsigned char* end)
{
    static constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    const unsigned lead = *bytes;
    const std::size_t length = lead < 0xC0 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF8 ? 4 : 0;
    if (length == 0 || length > static_cast<std::size_t>(end - bytes))
        return {};
    char32_t code = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((bytes[i] & 0xC0) != 0x80)
            return {};
        code = code << 6 | (bytes[i] & 0x3F);
    }
    if (code < smallest[length] || code > 0x10FFFF || is_surrogate(code))
        return {};
    return {length, code};
}

char16_t* put_units(char16_t* out, char32_t code)
{
    if (code < 0x10000) {
        *out++ = static_cast<char16_t>(code);
        return out;
    }
    *out++ = static_cast<char16_t>(0xD7C0 + (code >> 10));
    *out++ = static_cast<char16_t>(0xDC00 + (code & 0x3FF));
    return out;
}

char* put_bytes(char* out, char32_t code)
{
    const auto continuation = [code](int shift) { return static_cast<char>(0x80 | (code >> shift & 0x3F)); };
    if (code < 0x80) {
        *out++ = static_cast<char>(code);
        return out;
    }
    if (code < 0x800) {
        *out++ = static_cast<char>(0xC0 | code >> 6);
    } else if (code < 0x10000) {
        *out++ = static_cast<char>(0xE0 | code >> 12);
        *out++ = continuation(6);
    } else {
        *out++ = static_cast<char>(0xF0 | code >> 18);
        *out++ = continuation(12);
        *out++ = continuation(6);
    }
    *out++ = continuation(0);
    return out;
}

}

std::u16string decode_host_bytes(std::string_view bytes, char16_t slash)
{
    std::u16string text(bytes.size(), u'\0');
    char16_t* out = text.data();
    const auto* in = reinterpret_cast<const unsigned char*>(bytes.data());
    const unsigned char* const end = in + bytes.size();
    while (in != end) {
        const unsigned char byte = *in;
        if (byte < 0x80) {
            *out++ = byte == '\\' ? escaped_backslash : byte == '/' ? slash : byte;
            ++in;
            continue;
        }
        const Sequence sequence = multibyte_sequence(in, end);
        if (sequence.length == 0 || sequence.code == escaped_backslash) {
            *out++ = static_cast<char16_t>(0xDC00 + byte);
            ++in;
        } else {
            out = put_units(out, sequence.code);
            in += sequence.length;
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
            out = put_bytes(out, unit);
        else if (is_high_surrogate(unit) && i + 1 < units.size() && is_low_surrogate(units[i + 1]))
            out = put_bytes(out, 0x10000 + ((unit & 0x3FFu) << 10) + (units[++i] & 0x3FFu));
        else if (unit >= 0xDC80 && unit <= 0xDCFF)
            *out++ = static_cast<char>(unit - 0xDC00);
        else
            out = put_bytes(out, 0xFFFD);
    }
    bytes.resize(static_cast<std::size_t>(out - bytes.data()));
}

std::u16string from_host_name(std::string_view name)
{
    return decode_host_bytes(name, u'/');
}

void append_host_name(std::string& bytes, std::u16string_view name)
{
    append_host_bytes(bytes, name, '\\');
}

}
