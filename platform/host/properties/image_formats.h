#pragma once

#include "platform/byte_order.h"
#include "platform/host/properties/image_header.h"

namespace platform {

/// Numbers in a piece of a file, which must outlive the object; 0 behind its end.
class HeaderNumbers
{
public:
    HeaderNumbers(std::string_view bytes, bool is_big_endian) : bytes_(bytes), is_big_endian_(is_big_endian) {}

    std::uint64_t at(std::size_t offset, std::size_t size) const
    {
        if (offset + size > bytes_.size())
            return 0;
        const std::string_view number = bytes_.substr(offset, size);
        return is_big_endian_ ? big_endian(number) : little_endian(number);
    }

private:
    std::string_view bytes_;
    bool is_big_endian_;
};

/// What the header of a file that begins like one of the format says; empty for a broken one.
std::optional<ImageHeader> png_header(SubjectFile& file);
std::optional<ImageHeader> gif_header(SubjectFile& file);
std::optional<ImageHeader> webp_header(SubjectFile& file);
std::optional<ImageHeader> tiff_header(SubjectFile& file);
std::optional<ImageHeader> bmp_header(SubjectFile& file);
std::optional<ImageHeader> netpbm_header(SubjectFile& file);
std::optional<ImageHeader> tga_header(SubjectFile& file);

/// TGA has no mark of its own: true when all that a header tells fits together. What cursors begin with is TGA's too.
bool is_tga(SubjectFile& file);

}
