#include "platform/host/properties/image_formats.h"

namespace platform {

namespace {

constexpr std::uint64_t image_width = 0x100, image_length = 0x101, bits_per_sample = 0x102, samples_per_pixel = 0x115;

}

/// The tags of the first picture (TIFF 6.0, section 2); of several samples the first tells the bits.
std::optional<ImageHeader> tiff_header(SubjectFile& file)
{
    const bool is_big_endian = file.head().starts_with("MM");
    const std::uint64_t place = HeaderNumbers(file.head(), is_big_endian).at(4, 4);
    constexpr std::size_t entry_size = 12, most_entries = 1000, value_at = 8;
    const std::string bytes = file.read_text(place, 2 + most_entries * entry_size);
    const HeaderNumbers directory(bytes, is_big_endian);
    ImageHeader header;
    std::uint64_t samples = 1, bits = 1;
    for (std::size_t i = 0; i < directory.at(0, 2) && i < most_entries; ++i) {
        const std::size_t at = 2 + i * entry_size;
        const std::uint64_t type = directory.at(at + 2, 2), count = directory.at(at + 4, 4);
        constexpr std::uint64_t is_short = 3;
        const std::size_t size = type == is_short ? 2 : 4;
        const std::uint64_t value = directory.at(at + value_at, count * size > 4 ? 4 : size);
        const std::uint64_t tag = directory.at(at, 2);
        if (tag == image_width)
            header.width = value;
        else if (tag == image_length)
            header.height = value;
        else if (tag == bits_per_sample)
            bits = count * size > 4 ? HeaderNumbers(file.read_text(value, size), is_big_endian).at(0, size) : value;
        else if (tag == samples_per_pixel)
            samples = value;
    }
    constexpr std::uint64_t most = 64;
    header.bit_depth = samples <= most && bits <= most ? samples * bits : 0;
    return header;
}

}
