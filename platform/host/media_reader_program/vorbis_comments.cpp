#include "platform/host/media_reader_program/vorbis_comments.h"

#include <cstdint>

namespace platform {

namespace {

using namespace std::string_view_literals;

std::uint64_t number_at(std::string_view bytes, std::size_t at)
{
    std::uint64_t value = 0;
    for (std::size_t i = 4; i-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

/// `bytes` begin with the length of the vendor's name; the number of comments follows it.
bool is_honest(std::string_view bytes)
{
    // Far more than anyone writes, and counted in no time; a header can go on behind the end of the bytes.
    constexpr std::uint64_t harmless = 100'000, number_size = 4;
    if (bytes.size() < number_size)
        return true;
    const std::uint64_t vendor = number_at(bytes, 0);
    if (vendor + 2 * number_size > bytes.size())
        return vendor <= harmless;
    return number_at(bytes, static_cast<std::size_t>(number_size + vendor)) <= harmless;
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
