#include "engine/text/utf.h"

#include <algorithm>
#include <array>

namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool is_high_surrogate(char16_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

constexpr bool is_low_surrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

/// What a lead byte announces: how many bytes follow, and which range the first of them must lie in.
struct Sequence {
    int following = 0;
    unsigned char first_low = 0x80, first_high = 0xBF;
};

constexpr Sequence sequence_of(unsigned char lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return {1};
    if (lead == 0xE0)
        return {2, 0xA0, 0xBF};
    if (lead == 0xED)
        return {2, 0x80, 0x9F};
    if (lead >= 0xE1 && lead <= 0xEF)
        return {2};
    if (lead == 0xF0)
        return {3, 0x90, 0xBF};
    if (lead >= 0xF1 && lead <= 0xF3)
        return {3};
    if (lead == 0xF4)
        return {3, 0x80, 0x8F};
    return {};
}

/// Decodes the character at `at`, which is no ASCII, and moves behind it or behind the malformed sequence.
char32_t next_character(std::string_view utf8, std::size_t& at)
{
    const auto lead = static_cast<unsigned char>(utf8[at++]);
    Sequence sequence = sequence_of(lead);
    if (sequence.following == 0)
        return replacement;
    char32_t character = lead & (0x3Fu >> sequence.following);
    for (int i = 0; i < sequence.following; ++i) {
        if (at == utf8.size())
            return replacement;
        const auto byte = static_cast<unsigned char>(utf8[at]);
        if (byte < sequence.first_low || byte > sequence.first_high)
            return replacement;
        sequence.first_low = 0x80;
        sequence.first_high = 0xBF;
        character = (character << 6) | (byte & 0x3F);
        ++at;
    }
    return character;
}

void append_character(std::u16string& text, char32_t character)
{
    if (character < 0x10000) {
        text += static_cast<char16_t>(character);
        return;
    }
    character -= 0x10000;
    text += static_cast<char16_t>(0xD800 + (character >> 10));
    text += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
}

/// Writes the UTF-8 form of `character` at `out` and returns the place behind it.
char* put_utf8(char* out, char32_t character)
{
    const auto byte = [](char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    if (character < 0x800) {
        *out++ = byte(0xC0 | (character >> 6));
    } else if (character < 0x10000) {
        *out++ = byte(0xE0 | (character >> 12));
        *out++ = byte(0x80 | ((character >> 6) & 0x3F));
    } else {
        *out++ = byte(0xF0 | (character >> 18));
        *out++ = byte(0x80 | ((character >> 12) & 0x3F));
        *out++ = byte(0x80 | ((character >> 6) & 0x3F));
    }
    *out++ = byte(0x80 | (character & 0x3F));
    return out;
}

}

std::u16string to_utf16(std::string_view utf8)
{
    std::u16string text;
    text.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        if (const auto byte = static_cast<unsigned char>(utf8[at]); byte < 0x80) {
            text += static_cast<char16_t>(byte);
            ++at;
        } else {
            append_character(text, next_character(utf8, at));
        }
    }
    return text;
}

void append_utf8(std::string& utf8, std::u16string_view text)
{
    constexpr std::size_t block = 4096;
    std::array<char, block * 3> buffer;
    std::size_t at = 0;
    while (at < text.size()) {
        char* out = buffer.data();
        const std::size_t end = std::min(text.size(), at + block);
        while (at < end) {
            const char16_t unit = text[at++];
            if (unit < 0x80)
                *out++ = static_cast<char>(unit);
            else if (is_high_surrogate(unit) && at < end && is_low_surrogate(text[at]))
                out =
                    put_utf8(out, 0x10000 + ((static_cast<char32_t>(unit) - 0xD800) << 10) + (text[at++] - 0xDC00u));
            else if (is_high_surrogate(unit) && at == end && at < text.size()) {
                --at; // the pair may be completed by the next block
                break;
            } else
                out = put_utf8(out, unit >= 0xD800 && unit < 0xE000 ? replacement : char32_t{unit});
        }
        utf8.append(buffer.data(), out);
    }
}

std::string to_utf8(std::u16string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    append_utf8(utf8, text);
    return utf8;
}
