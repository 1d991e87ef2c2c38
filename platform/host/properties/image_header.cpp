#include "platform/host/properties/image_header.h"

#include <array>

namespace platform {

namespace {

using namespace std::string_view_literals;

/// Numbers in a piece of a file; 0 behind its end.
class Numbers
{
public:
    Numbers(std::string_view bytes, bool is_big_endian) : bytes_(bytes), is_big_endian_(is_big_endian) {}

    std::uint64_t at(std::size_t offset, std::size_t size) const
    {
        if (offset + size > bytes_.size())
            return 0;
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | static_cast<unsigned char>(bytes_[offset + (is_big_endian_ ? i : size - 1 - i)]);
        return value;
    }

private:
    std::string_view bytes_;
    bool is_big_endian_;
};

/// Width, height, bits a sample, colour type (PNG 1.2, 4.1.1).
std::optional<ImageHeader> png_header(std::string_view head)
{
    constexpr auto start = "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"sv;
    constexpr std::array<std::uint64_t, 7> samples_of_type{1, 0, 3, 1, 2, 0, 4};
    const Numbers numbers(head, true);
    const std::uint64_t type = numbers.at(25, 1);
    if (!head.starts_with(start) || type >= samples_of_type.size() || samples_of_type[type] == 0)
        return {};
    return ImageHeader{numbers.at(16, 4), numbers.at(20, 4), numbers.at(24, 1) * samples_of_type[type]};
}

/// The size of the screen, and how many colours the common table has; without one the frames have as many as there
/// can be (GIF89a, 18).
std::optional<ImageHeader> gif_header(std::string_view head)
{
    const Numbers numbers(head, false);
    const std::uint64_t flags = numbers.at(10, 1);
    constexpr std::uint64_t has_table = 0x80, most_bits = 8;
    return ImageHeader{numbers.at(6, 2), numbers.at(8, 2), (flags & has_table) != 0 ? (flags & 7) + 1 : most_bits};
}

/// The first chunk is of one of three kinds (RFC 9649, 2.5 to 2.7).
std::optional<ImageHeader> webp_header(std::string_view head)
{
    const Numbers numbers(head, false);
    const std::string_view chunk = head.substr(12, 4);
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

/// The tags of the first picture (TIFF 6.0, section 2); of several samples the first tells the bits.
std::optional<ImageHeader> tiff_header(SubjectFile& file)
{
    const bool is_big_endian = file.head().starts_with("MM");
    const std::uint64_t place = Numbers(file.head(), is_big_endian).at(4, 4);
    constexpr std::size_t entry_size = 12, most_entries = 1000, value_at = 8;
    const std::string bytes = file.read_text(place, 2 + most_entries * entry_size);
    const Numbers directory(bytes, is_big_endian);
    ImageHeader header;
    std::uint64_t samples = 1, bits = 1;
    for (std::size_t i = 0; i < directory.at(0, 2) && i < most_entries; ++i) {
        const std::size_t at = 2 + i * entry_size;
        const std::uint64_t type = directory.at(at + 2, 2), count = directory.at(at + 4, 4);
        constexpr std::uint64_t is_short = 3;
        const std::size_t size = type == is_short ? 2 : 4;
        const std::uint64_t value = directory.at(at + value_at, count * size > 4 ? 4 : size);
        switch (directory.at(at, 2)) {
        case 0x100: header.width = value; break;
        case 0x101: header.height = value; break;
        case 0x102:
            bits = count * size > 4 ? Numbers(file.read_text(value, size), is_big_endian).at(0, size) : value;
            break;
        case 0x115: samples = value; break;
        default: break;
        }
    }
    constexpr std::uint64_t most = 64;
    header.bit_depth = samples <= most && bits <= most ? samples * bits : 0;
    return header;
}

bool is_png(std::string_view head)
{
    return head.starts_with("\x89PNG"sv);
}

bool is_gif(std::string_view head)
{
    return head.starts_with("GIF8"sv);
}

bool is_webp(std::string_view head)
{
    return head.starts_with("RIFF"sv) && head.substr(0, 12).ends_with("WEBP"sv);
}

bool is_tiff(std::string_view head)
{
    return head.starts_with("II*\0"sv) || head.starts_with("MM\0*"sv);
}

}

bool has_plain_header(SubjectFile& file)
{
    const std::string_view head = file.head();
    return is_png(head) || is_gif(head) || is_webp(head) || is_tiff(head);
}

std::optional<ImageHeader> image_header(SubjectFile& file)
{
    const std::string_view head = file.head();
    return is_png(head)    ? png_header(head)
           : is_gif(head)  ? gif_header(head)
           : is_webp(head) ? webp_header(head)
           : is_tiff(head) ? tiff_header(file)
                           : std::nullopt;
}

}
