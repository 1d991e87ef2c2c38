#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// Fills in a date or time picture. `field` gives the text for a run of `count` equal letters outside quotes, or
/// nothing when the letter is no field: it then stands as it is. A quote left open ends with the picture.
std::u16string
expand_picture(std::u16string_view picture,
               const std::function<std::optional<std::u16string>(char16_t letter, std::size_t count)>& field);

}
