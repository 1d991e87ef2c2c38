#include "platform/host/properties/exif_block.h"

#include "platform/byte_order.h"
#include "platform/host/properties/heif_exif.h"

#include <algorithm>

namespace platform {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view exif_head = "Exif\0\0"sv;
constexpr std::size_t largest_block = 65'533;
/// Segments or chunks to walk over before the search is given up.
constexpr int most_steps = 200;

std::string with_head(std::string block)
{
    if (!block.empty() && !block.starts_with(exif_head))
        block.insert(0, exif_head);
    return block;
}

/// Walks the marker segments up to the image data.
std::string in_jpeg(SubjectFile& file)
{
    std::uint64_t at = 2;
    for (int i = 0; i < most_steps; ++i) {
        constexpr std::size_t lead = 4;
        const std::string start = file.read_text(at, lead + exif_head.size());
        if (start.size() < lead || start[0] != '\xFF' || start[1] == '\xDA')
            return {};
        const std::uint64_t length = big_endian(std::string_view(start).substr(2, 2));
        if (length < 2)
            return {};
        if (start[1] == '\xE1' && start.substr(lead) == exif_head)
            return file.read_text(at + lead, length - 2);
        at += 2 + length;
    }
    return {};
}

/// Walks chunks of a name, a length and that many bytes.
std::string in_chunks(SubjectFile& file, bool is_png)
{
    std::uint64_t at = is_png ? 8 : 12;
    for (int i = 0; i < most_steps; ++i) {
        constexpr std::size_t lead = 8;
        const std::string start = file.read_text(at, lead);
        if (start.size() < lead)
            return {};
        const auto part = [&start](std::size_t from) { return std::string_view(start).substr(from, 4); };
        const std::uint64_t length = is_png ? big_endian(part(0)) : little_endian(part(4));
        if (part(is_png ? 4 : 0) == (is_png ? "eXIf"sv : "EXIF"sv))
            return with_head(file.read_text(at + lead, std::min<std::uint64_t>(length, largest_block)));
        at += lead + (is_png ? length + 4 : length + length % 2);
    }
    return {};
}

/// Some makers of cameras put letters of their own in the place of TIFF's 42, and the rest is TIFF.
std::string as_tiff(std::string block)
{
    constexpr std::size_t magic_at = 2;
    if (block.size() > magic_at + 1) {
        block[magic_at] = block[0] == 'I' ? '*' : '\0';
        block[magic_at + 1] = block[0] == 'I' ? '\0' : '*';
    }
    return block;
}

}

std::string exif_block(SubjectFile& file)
{
    const std::string start = file.read_text(0, 12);
    if (start.starts_with("\xFF\xD8"sv))
        return in_jpeg(file);
    if (start.starts_with("\x89PNG"sv))
        return in_chunks(file, true);
    if (start.starts_with("RIFF"sv) && start.ends_with("WEBP"sv))
        return in_chunks(file, false);
    if (start.starts_with("II"sv) || start.starts_with("MM"sv))
        return with_head(as_tiff(file.read_text(0, largest_block)));
    return with_head(heif_exif(file));
}

}
