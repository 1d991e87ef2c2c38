#pragma once

#include "platform/host/properties/subject_file.h"

namespace platform {

struct ImageHeader {
    /// In pixels.
    std::uint64_t width = 0, height = 0;
    /// Bits of a pixel in the file; 0 when the header doesn't tell.
    std::uint64_t bit_depth = 0;
};

/// True for PNG, GIF, WebP, TIFF, BMP, netpbm's formats and TGA.
bool has_plain_header(SubjectFile& file);

/// What the header of such a file says; empty for a broken one. Read here since the usual decoders of PNG and TIFF
/// tell errors on the standard error output past all logging, those of WebP and TGA are seldom installed, and those
/// of the others tell the bits that a pixel takes in memory.
std::optional<ImageHeader> image_header(SubjectFile& file);

}
