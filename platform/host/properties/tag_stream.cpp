#include "platform/host/properties/tag_stream.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t page_size = 4096;
/// Covers among the tags take megabytes.
constexpr std::size_t largest_read = 13 << 19;

}

TagStream::TagStream(SubjectFile& file) : file_(file), is_open_(file.descriptor() >= 0) {}

TagLib::ByteVector TagStream::readBlock(unsigned long length)
{
    const bool is_hidden = hides_tags_ && std::exchange(is_in_tag_, false);
    if (length == 0 || position_ >= this->length() || is_hidden)
        return {};
    const auto rest = static_cast<std::size_t>(this->length() - position_);
    const std::size_t whole = std::min<std::size_t>(length, rest);
    const std::size_t wanted = std::min(whole, largest_read);
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
    constexpr unsigned head_size = 10;
    is_in_tag_ = result.size() == head_size && result.startsWith("ID3");
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
