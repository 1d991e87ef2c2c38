#include "platform/host/text_streams.h"

#include "platform/host/write_all.h"
#include "platform/utf.h"

#include <array>

namespace platform {

namespace {

/// The character at the front of `text`, which is cut off.
char32_t take_character(std::u16string_view& text)
{
    const char16_t unit = text.front();
    text.remove_prefix(1);
    if (!is_surrogate(unit))
        return unit;
    if (!is_high_surrogate(unit) || text.empty() || !is_low_surrogate(text.front()))
        return 0xFFFD;
    const char32_t code = from_surrogates(unit, text.front());
    text.remove_prefix(1);
    return code;
}

}

bool write_utf8(int descriptor, std::u16string_view text)
{
    constexpr std::size_t longest_character = 4;
    std::array<char, 1 << 16> piece;
    while (!text.empty()) {
        char* out = piece.data();
        while (!text.empty() && out + longest_character <= piece.data() + piece.size())
            out = put_utf8(out, take_character(text));
        if (!write_all(descriptor, {piece.data(), out}))
            return false;
    }
    return true;
}

std::optional<std::string> read_all(int descriptor, Deadline deadline)
{
    std::string content;
    std::array<char, 1 << 16> piece;
    while (wait_readable(descriptor, deadline)) {
        const ssize_t count = read(descriptor, piece.data(), piece.size());
        if (count == 0)
            return content;
        if (count < 0 && errno != EINTR)
            return std::nullopt;
        content.append(piece.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    return std::nullopt;
}

std::u16string decode_utf8(std::string_view bytes)
{
    std::u16string text(bytes.size(), u'\0'); // no character has more units than bytes
    char16_t* out = text.data();
    for (const char *at = bytes.data(), *const end = at + bytes.size(); at != end;) {
        const Utf8Character character = utf8_character(at, end);
        out = put_utf16(out, character.code);
        at += character.length;
    }
    text.resize(static_cast<std::size_t>(out - text.data()));
    return text;
}

}
