#pragma once

#include "platform/locale_format.h"
#include "platform/paths.h"
#include "platform/properties.h"

#include <string>
#include <string_view>

inline std::string host_text(std::u16string_view text)
{
    std::string bytes;
    platform::append_host_name(bytes, text);
    return bytes;
}

inline std::u16string property_name(std::string_view short_name)
{
    return u"System." + std::u16string(short_name.begin(), short_name.end());
}

/// "value | shown text", or the one when both are the same; "-" without the property. A moment's shown text depends
/// on the user's zone and locale: "local" where it is the platform's own text for it.
inline std::string property_text(platform::FileProperties& file, std::string_view short_name)
{
    const auto value = file.value(property_name(short_name));
    const auto shown = file.display_text(property_name(short_name));
    if (!value || !shown)
        return value.has_value() == shown.has_value() ? "-" : "only one of both";
    const std::u16string raw = platform::to_text(*value).value_or(u"?");
    if (const auto* moment = std::get_if<platform::FileTimeValue>(&*value))
        if (const auto time = platform::to_local_time(moment->ticks))
            if (*shown == date_text(*time, platform::DateStyle::Short) + u" " + time_text(*time))
                return host_text(raw) + " | local";
    return host_text(raw == *shown ? raw : raw + u" | " + *shown);
}
