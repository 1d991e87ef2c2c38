#include "platform/host/media_reader_program/vorbis_comments.h"

#include "platform/byte_order.h"

namespace platform {

namespace {

using namespace std::string_view_literals;

/// `bytes` begin with the length of the vendor's name; the number of comments follows it.
bool is_honest(std::string_view bytes)
{
    // Far more than anyone writes, and counted in no time; a header can go on behind the end of the bytes.
    constexpr std::uint64_t harmless = 100'000;
    constexpr std::size_t number_size = 4;
    if (bytes.size() < number_size)
        return true;
    const std::uint64_t vendor = little_endian(bytes.substr(0, number_size));
    if (vendor + 2 * number_size > bytes.size())
        return vendor <= harmless;
    return little_endian(bytes.substr(number_size + vendor, number_size)) <= harmless;
}

}

bool has_honest_comments(std::string_view bytes)
{
    for (const std::string_view mark : {"\3vorbis"sv, "OpusTags"sv, "\x81theora"sv})
        for (std::size_t at = 0; (at = bytes.find(mark, at)) != bytes.npos; ++at)
            if (!is_honest(bytes.substr(at + mark.size())))
                return false;
    return true;
}

}
