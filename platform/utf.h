#pragma once

#include <cstddef>

/// The building blocks of UTF-8 and UTF-16 (RFC 3629, RFC 2781), for whoever walks through a text of either.
namespace platform {

constexpr bool is_surrogate(char32_t code)
{
    return code >= 0xD800 && code <= 0xDFFF;
}

constexpr bool is_high_surrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool is_low_surrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr char32_t from_surrogates(char16_t high, char16_t low)
{
    return 0x10000 + ((high & 0x3FFu) << 10) + (low & 0x3FFu);
}

/// What stands at one place of a UTF-8 text.
struct Utf8Character {
    char32_t code = 0xFFFD;
    std::size_t length = 1; ///< in bytes; of a malformed sequence, those that could have begun a well-formed one
    bool well_formed = false;
};

/// The character at `at`, which lies before `end`. Overlong forms, surrogates and codes beyond U+10FFFF are
/// malformed.
constexpr Utf8Character utf8_character(const char* at, const char* end)
{
    const auto byte = [at](std::size_t i) { return static_cast<unsigned char>(at[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80)
        return {lead, 1, true};
    if (lead < 0xC2 || lead > 0xF4)
        return {};
    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    // What the second byte must be is narrower behind some leads: this is where the malformed forms fall out.
    unsigned low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    unsigned high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    char32_t code = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i, low = 0x80, high = 0xBF) {
        if (i == static_cast<std::size_t>(end - at) || byte(i) < low || byte(i) > high)
            return {0xFFFD, i, false};
        code = code << 6 | (byte(i) & 0x3Fu);
    }
    return {code, length, true};
}

/// Writes a character's one or two units at `out` and returns the place behind them.
constexpr char16_t* put_utf16(char16_t* out, char32_t code)
{
    if (code < 0x10000) {
        *out++ = static_cast<char16_t>(code);
        return out;
    }
    *out++ = static_cast<char16_t>(0xD7C0 + (code >> 10));
    *out++ = static_cast<char16_t>(0xDC00 + (code & 0x3FF));
    return out;
}

/// Writes a character's one to four bytes at `out` and returns the place behind them.
constexpr char* put_utf8(char* out, char32_t code)
{
    const auto continuation = [code](unsigned shift) { return static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
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
