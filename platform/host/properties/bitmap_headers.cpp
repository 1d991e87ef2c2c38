#include "platform/host/properties/image_formats.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>

namespace platform {

namespace {

/// Takes a number with the blanks and comments before it off the front; 0 when there is none.
std::uint64_t take_number(std::string_view& text)
{
    constexpr std::string_view blanks = " \t\n\v\f\r";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    while (text.starts_with('#')) {
        text.remove_prefix(std::min(text.find('\n'), text.size()));
        text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    }
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return error == std::errc() ? number : 0;
}

}

/// In one of two forms, of which the older one is short; lines that go downwards make the height negative.
std::optional<ImageHeader> bmp_header(SubjectFile& file)
{
    const HeaderNumbers numbers(file.head(), false);
    constexpr std::uint64_t short_form = 12, widest = INT32_MAX;
    if (numbers.at(14, 4) == short_form)
        return ImageHeader{numbers.at(18, 2), numbers.at(20, 2), numbers.at(24, 2)};
    const std::int64_t height = static_cast<std::int32_t>(numbers.at(22, 4));
    if (numbers.at(18, 4) > widest)
        return {};
    return ImageHeader{numbers.at(18, 4), static_cast<std::uint64_t>(std::abs(height)), numbers.at(28, 2)};
}

/// Width, height and, but for bitmaps, the greatest sample, in digits (ppm(5), pgm(5), pbm(5)).
std::optional<ImageHeader> netpbm_header(SubjectFile& file)
{
    std::string_view text = file.head();
    const char type = text[1];
    text.remove_prefix(2);
    const bool is_bitmap = type == '1' || type == '4';
    const std::uint64_t width = take_number(text), height = take_number(text);
    const std::uint64_t greatest = is_bitmap ? 1 : take_number(text), samples = type == '3' || type == '6' ? 3 : 1;
    constexpr std::uint64_t greatest_of_all = 0xFFFF, greatest_of_byte = 0xFF;
    if (greatest == 0 || greatest > greatest_of_all)
        return {};
    return ImageHeader{width, height, is_bitmap ? 1 : samples * (greatest > greatest_of_byte ? 16 : 8)};
}

bool is_tga(SubjectFile& file)
{
    const HeaderNumbers numbers(file.head(), false);
    constexpr std::array<std::uint64_t, 6> types{1, 2, 3, 9, 10, 11};
    constexpr std::array<std::uint64_t, 5> depths{8, 15, 16, 24, 32};
    const std::uint64_t map_type = numbers.at(1, 1), type = numbers.at(2, 1);
    // Some programs leave something in the place of a map that isn't there.
    const bool has_honest_map =
        map_type == 1 || (map_type == 0 && (numbers.at(3, 4) == 0 || file.named_format() == FileFormat::Tga));
    const bool needs_map = type == 1 || type == 9;
    return has_honest_map && (map_type == 1 || !needs_map) && std::ranges::count(types, type) > 0 &&
           std::ranges::count(depths, numbers.at(16, 1)) > 0;
}

/// Truevision TGA 2.0, fields 5.3 to 5.5.
std::optional<ImageHeader> tga_header(SubjectFile& file)
{
    const HeaderNumbers numbers(file.head(), false);
    return ImageHeader{numbers.at(12, 2), numbers.at(14, 2), numbers.at(16, 1)};
}

}
