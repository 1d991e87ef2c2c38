#include "platform/host/picture.h"

#include <algorithm>

namespace platform {

namespace {

/// Appends the quoted text that starts behind `start`, the opening quote; returns the position behind the closing
/// one.
std::size_t append_quoted(std::u16string& text, std::u16string_view picture, std::size_t start)
{
    std::size_t i = start + 1;
    for (; i < picture.size(); ++i) {
        if (picture[i] == u'\'' && (++i == picture.size() || picture[i] != u'\''))
            break;
        text += picture[i];
    }
    return i;
}

}

std::u16string
expand_picture(std::u16string_view picture,
               const std::function<std::optional<std::u16string>(char16_t letter, std::size_t count)>& field)
{
    std::u16string text;
    for (std::size_t i = 0; i < picture.size();) {
        if (picture[i] == u'\'') {
            i = append_quoted(text, picture, i);
            continue;
        }
        const std::size_t end = std::min(picture.find_first_not_of(picture[i], i), picture.size());
        text += field(picture[i], end - i).value_or(std::u16string(end - i, picture[i]));
        i = end;
    }
    return text;
}

}
