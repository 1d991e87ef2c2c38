#include "platform/host/properties/tag_stream.h"

#include <algorithm>

namespace platform {

namespace {

constexpr std::size_t page_size = 4096;
/// Covers among the tags take megabytes.
constexpr std::size_t largest_read = 13 << 19;
/// What can't do harm even when it is compressed.
constexpr std::size_t harmless_read = 66'000;

constexpr bool is_id_character(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// Clears the compression flag in whatever looks like the head of a frame: a name of four characters, a size below
/// the largest read, and only flags that ID3 2.3 or 2.4 define.
void mark_frames_plain(TagLib::ByteVector& data)
{
    constexpr unsigned head = 10, size_at = 4, flags_at = 9;
    constexpr unsigned char compressed = 0x88, undefined = 0x10, largest_size = 8;
    char* const bytes = data.data();
    for (unsigned i = 0; i + head <= data.size(); ++i) {
        const auto size = static_cast<unsigned char>(bytes[i + size_at]);
        const auto flags = static_cast<unsigned char>(bytes[i + flags_at]);
        if (size < largest_size && (flags & compressed) != 0 && (flags & undefined) == 0 &&
            std::all_of(bytes + i, bytes + i + size_at, is_id_character))
            bytes[i + flags_at] = static_cast<char>(flags & ~compressed);
    }
}

}

TagStream::TagStream(SubjectFile& file) : file_(file), is_open_(file.descriptor() >= 0) {}

TagLib::ByteVector TagStream::readBlock(unsigned long length)
{
    if (length == 0 || position_ >= this->length())
        return {};
    const auto rest = static_cast<std::size_t>(this->length() - position_);
    const std::size_t whole = std::min<std::size_t>(length, rest);
    const std::size_t wanted = std::min(whole, is_escaped_ ? harmless_read : largest_read);
    const bool is_in_page =
        position_ >= page_start_ && static_cast<std::size_t>(position_ - page_start_) + wanted <= page_.size();
    if (!is_in_page) {
        page_ = file_.read_text(static_cast<std::uint64_t>(position_), std::max(wanted, page_size));
        page_start_ = position_;
    }
    const auto start = static_cast<std::size_t>(position_ - page_start_);
    const std::size_t count = std::min(wanted, page_.size() - start);
    position_ += static_cast<long>(whole);
    TagLib::ByteVector result(page_.data() + start, static_cast<unsigned>(count));
    constexpr unsigned escape_at = 5;
    if (result.size() > escape_at && result.startsWith("ID3"))
        is_escaped_ = (result[escape_at] & 0x80) != 0;
    if (count > harmless_read)
        mark_frames_plain(result);
    return result;
}

void TagStream::seek(long offset, Position from)
{
    const long base = from == Beginning ? 0 : from == Current ? position_ : length();
    long target = 0;
    if (!__builtin_add_overflow(base, offset, &target))
        position_ = std::max(target, 0L);
}

}
