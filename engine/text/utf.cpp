#include "engine/text/utf.h"

#include "platform/utf.h"

std::u16string to_utf16(std::string_view utf8)
{
    std::u16string text(utf8.size(), u'\0');
    char16_t* out = text.data();
    const char* const end = utf8.data() + utf8.size();
    for (const char* at = utf8.data(); at != end;) {
        const platform::Utf8Character character = platform::utf8_character(at, end);
        out = platform::put_utf16(out, character.code);
        at += character.length;
    }
    text.resize(static_cast<std::size_t>(out - text.data()));
    return text;
}

std::string to_utf8(std::u16string_view text)
{
    std::string utf8(3 * text.size(), '\0');
    char* out = utf8.data();
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!platform::is_surrogate(text[i]))
            out = platform::put_utf8(out, text[i]);
        else if (platform::is_high_surrogate(text[i]) && i + 1 < text.size() &&
                 platform::is_low_surrogate(text[i + 1])) {
            out = platform::put_utf8(out, platform::from_surrogates(text[i], text[i + 1]));
            ++i;
        } else
            out = platform::put_utf8(out, 0xFFFD);
    }
    utf8.resize(static_cast<std::size_t>(out - utf8.data()));
    return utf8;
}
