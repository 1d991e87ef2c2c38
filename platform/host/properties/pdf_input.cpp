#include "platform/host/properties/pdf_input.h"

#include <array>
#include <cstdio>
#include <stdexcept>

namespace platform {

qpdf_offset_t PdfInput::findAndSkipNextEOL()
{
    std::array<char, 4096> block;
    constexpr std::string_view ends = "\r\n";
    for (;;) {
        const qpdf_offset_t start = position_;
        const std::string_view bytes(block.data(), read(block.data(), block.size()));
        if (bytes.empty())
            return start;
        const std::size_t end = bytes.find_first_of(ends);
        if (end == bytes.npos)
            continue;
        // What follows the end of the line can lie in the next block, so that it is asked for anew.
        position_ = start + static_cast<qpdf_offset_t>(end);
        const qpdf_offset_t found = position_;
        char next = '\0';
        while (read(&next, 1) == 1)
            if (ends.find(next) == ends.npos) {
                --position_;
                break;
            }
        return found;
    }
}

void PdfInput::seek(qpdf_offset_t offset, int whence)
{
    const qpdf_offset_t base = whence == SEEK_SET   ? 0
                               : whence == SEEK_CUR ? position_
                                                    : static_cast<qpdf_offset_t>(file_.size());
    if (__builtin_add_overflow(base, offset, &position_) || position_ < 0)
        throw std::runtime_error("seek before the beginning");
}

size_t PdfInput::read(char* out, size_t length)
{
    if (!file_.has_allowance())
        throw std::runtime_error("too much to read");
    setLastOffset(position_);
    const std::size_t count = file_.read_at(static_cast<std::uint64_t>(position_), out, length);
    position_ += static_cast<qpdf_offset_t>(count);
    return count;
}

}
