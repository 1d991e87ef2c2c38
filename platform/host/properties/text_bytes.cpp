#include "platform/host/properties/text_bytes.h"

#include "platform/byte_order.h"
#include "platform/utf.h"

namespace platform {

namespace {

constexpr bool is_blank(char16_t unit)
{
    return unit <= u' ' || unit == u'\u00A0' || unit == u'\uFEFF';
}

void replace_lone_surrogates(std::u16string& text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (is_high_surrogate(text[i]) && i + 1 < text.size() && is_low_surrogate(text[i + 1]))
            ++i;
        else if (is_surrogate(text[i]))
            text[i] = u'\uFFFD';
    }
}

}

std::u16string decode_bytes(std::string_view bytes)
{
    std::u16string result(bytes.size(), u'\0');
    char16_t* out = result.data();
    const char* const end = bytes.data() + bytes.size();
    for (const char* at = bytes.data(); at != end;) {
        const Utf8Character character = utf8_character(at, end);
        if (!character.well_formed) {
            for (std::size_t i = 0; i < bytes.size(); ++i)
                result[i] = static_cast<unsigned char>(bytes[i]);
            return result;
        }
        out = put_utf16(out, character.code);
        at += character.length;
    }
    result.resize(static_cast<std::size_t>(out - result.data()));
    return result;
}

std::u16string decode_ucs2(std::string_view bytes)
{
    std::u16string result;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        result += static_cast<char16_t>(little_endian(bytes.substr(i, 2)));
    return result;
}

std::string to_ascii(std::u16string_view text)
{
    std::string result;
    for (const char16_t unit : text)
        result += unit < 0x80 ? static_cast<char>(unit) : '?';
    return result;
}

std::string lower_ascii(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    return text;
}

std::u16string tidy_text(std::u16string_view text)
{
    text = text.substr(0, text.find(u'\0')).substr(0, longest_text);
    while (!text.empty() && is_blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && is_blank(text.back()))
        text.remove_suffix(1);
    std::u16string result(text);
    replace_lone_surrogates(result);
    return result;
}

}
