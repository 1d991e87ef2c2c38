#include "platform/host/properties/image_formats.h"

#include <algorithm>

namespace platform {

namespace {

using namespace std::string_view_literals;

bool is_png(SubjectFile& file)
{
    return file.head().starts_with("\x89PNG"sv);
}

bool is_gif(SubjectFile& file)
{
    return file.head().starts_with("GIF8"sv);
}

bool is_webp(SubjectFile& file)
{
    constexpr std::size_t name_at = 8;
    const std::string_view head = file.head();
    return head.starts_with("RIFF"sv) && head.size() > name_at && head.substr(name_at).starts_with("WEBP"sv);
}

bool is_tiff(SubjectFile& file)
{
    return file.head().starts_with("II*\0"sv) || file.head().starts_with("MM\0*"sv);
}

bool is_bmp(SubjectFile& file)
{
    return file.head().starts_with("BM"sv);
}

bool is_netpbm(SubjectFile& file)
{
    constexpr std::string_view types = "123456", ends = " \t\n\v\f\r#";
    const std::string& head = file.head();
    return head.size() > 2 && head[0] == 'P' && types.find(head[1]) != types.npos && ends.find(head[2]) != ends.npos;
}

struct Format {
    bool (*matches)(SubjectFile&);
    std::optional<ImageHeader> (*header)(SubjectFile&);
};

constexpr Format formats[] = {
    {is_png, png_header}, {is_gif, gif_header},       {is_webp, webp_header}, {is_tiff, tiff_header},
    {is_bmp, bmp_header}, {is_netpbm, netpbm_header}, {is_tga, tga_header},
};

const Format* format_of(SubjectFile& file)
{
    const auto* const found = std::ranges::find_if(formats, [&file](const Format& one) { return one.matches(file); });
    return found == std::end(formats) ? nullptr : found;
}

}

bool has_plain_header(SubjectFile& file)
{
    return format_of(file) != nullptr;
}

std::optional<ImageHeader> image_header(SubjectFile& file)
{
    const Format* const format = format_of(file);
    return format ? format->header(file) : std::nullopt;
}

}
