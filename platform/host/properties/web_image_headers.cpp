#include "platform/host/properties/image_formats.h"

#include <array>

namespace platform {

using namespace std::string_view_literals;

/// Width, height, bits a sample, colour type (PNG 1.2, 4.1.1).
std::optional<ImageHeader> png_header(SubjectFile& file)
{
    constexpr auto start = "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"sv;
    constexpr std::array<std::uint64_t, 7> samples_of_type{1, 0, 3, 1, 2, 0, 4};
    const std::string_view head = file.head();
    const HeaderNumbers numbers(head, true);
    const std::uint64_t type = numbers.at(25, 1);
    if (!head.starts_with(start) || type >= samples_of_type.size() || samples_of_type[type] == 0)
        return {};
    return ImageHeader{numbers.at(16, 4), numbers.at(20, 4), numbers.at(24, 1) * samples_of_type[type]};
}

/// The size of the screen, and how many colours the common table has; without one the frames have as many as there
/// can be (GIF89a, 18).
std::optional<ImageHeader> gif_header(SubjectFile& file)
{
    const HeaderNumbers numbers(file.head(), false);
    const std::uint64_t flags = numbers.at(10, 1);
    constexpr std::uint64_t has_table = 0x80, most_bits = 8;
    return ImageHeader{numbers.at(6, 2), numbers.at(8, 2), (flags & has_table) != 0 ? (flags & 7) + 1 : most_bits};
}

/// The first chunk is of one of three kinds (RFC 9649, 2.5 to 2.7).
std::optional<ImageHeader> webp_header(SubjectFile& file)
{
    const HeaderNumbers numbers(file.head(), false);
    const std::string_view chunk = std::string_view(file.head()).substr(12, 4);
    constexpr std::uint64_t opaque = 24, transparent = 32, low_bits = 0x3FFF;
    if (chunk == "VP8X")
        return ImageHeader{numbers.at(24, 3) + 1, numbers.at(27, 3) + 1,
                           (numbers.at(20, 1) & 0x10) != 0 ? transparent : opaque};
    if (chunk == "VP8L" && numbers.at(20, 1) == 0x2F) {
        const std::uint64_t bits = numbers.at(21, 4);
        return ImageHeader{(bits & low_bits) + 1, (bits >> 14 & low_bits) + 1,
                           (bits >> 28 & 1) != 0 ? transparent : opaque};
    }
    if (chunk == "VP8 " && numbers.at(23, 3) == 0x2A019D)
        return ImageHeader{numbers.at(26, 2) & low_bits, numbers.at(28, 2) & low_bits, opaque};
    return {};
}

}
