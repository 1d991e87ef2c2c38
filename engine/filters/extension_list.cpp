#include "engine/filters/extension_list.h"

#include "engine/text/letters.h"

#include <algorithm>

std::vector<std::u16string> parse_extensions(std::u16string_view list)
{
    std::vector<std::u16string> extensions;
    for (std::size_t at = 0; at <= list.size();) {
        const std::size_t end = std::min(list.find(u';', at), list.size());
        std::u16string_view piece = list.substr(at, end - at);
        at = end + 1;
        if (piece.starts_with(u'.'))
            piece.remove_prefix(1);
        piece.remove_prefix(std::min(piece.find_first_not_of(u' '), piece.size()));
        piece = piece.substr(0, piece.find_last_not_of(u' ') + 1);
        if (!piece.empty())
            extensions.emplace_back(piece);
    }
    return extensions;
}

bool has_extension_of(std::u16string_view name, const std::vector<std::u16string>& extensions)
{
    const std::size_t dot = name.rfind(u'.');
    if (dot == name.npos || dot + 1 == name.size() || name.find(u'\\', dot) != name.npos)
        return false;
    const std::u16string extension = lower_cased(name.substr(dot + 1));
    return std::ranges::any_of(extensions, [&](const auto& entry) { return entry == extension; });
}
