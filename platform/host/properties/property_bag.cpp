#include "platform/host/properties/property_bag.h"

#include "platform/host/properties/text_bytes.h"

#include <algorithm>

namespace platform {

void PropertyBag::set(std::u16string_view name, PropertyValue value)
{
    if (!find(name))
        values_.emplace_back(name, std::move(value));
}

void PropertyBag::set_text(std::u16string_view name, std::u16string_view text)
{
    std::u16string tidy = tidy_text(text);
    if (!tidy.empty())
        set(name, std::move(tidy));
}

void PropertyBag::set_text(std::u16string_view name, std::string_view bytes)
{
    set_text(name, decode_bytes(bytes));
}

void PropertyBag::set_list(std::u16string_view name, std::u16string_view text)
{
    std::vector<std::u16string> pieces;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(u';', start), text.size());
        pieces.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    set_list(name, pieces);
}

void PropertyBag::set_list(std::u16string_view name, const std::vector<std::u16string>& texts)
{
    std::vector<std::u16string> tidy;
    std::size_t length = 0;
    for (const auto& text : texts)
        if (std::u16string one = tidy_text(text); !one.empty()) {
            length += one.size() + 1;
            if (!tidy.empty() && length > longest_text)
                break;
            tidy.push_back(std::move(one));
        }
    if (!tidy.empty())
        set(name, std::move(tidy));
}

void PropertyBag::set_time(std::u16string_view name, std::optional<std::int64_t> ticks)
{
    if (ticks)
        set(name, FileTimeValue{*ticks});
}

void PropertyBag::set_dimensions(std::uint64_t width, std::uint64_t height)
{
    set_count(u"System.Image.HorizontalSize", width);
    set_count(u"System.Image.VerticalSize", height);
    set_text(u"System.Image.Dimensions", std::to_string(width) + " x " + std::to_string(height));
}

const PropertyValue* PropertyBag::find(std::u16string_view name) const
{
    const auto found = std::ranges::find(values_, name, [](const auto& entry) { return entry.first; });
    return found == values_.end() ? nullptr : &found->second;
}

}
