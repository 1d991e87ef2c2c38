#include "platform/byte_order.h"
#include "platform/host/properties/file_kind.h"

#include <algorithm>

namespace platform {

namespace {

using namespace std::string_view_literals;

struct MagicRow {
    std::size_t offset;
    std::string_view bytes;
    FileKind kind;
};

constexpr MagicRow magics[] = {
    {0, "\xFF\xD8\xFF"sv, FileKind::Image},
    {0, "\x89PNG\r\n"sv, FileKind::Image},
    {0, "GIF8"sv, FileKind::Image},
    {0, "II*\0"sv, FileKind::Image},
    {0, "MM\0*"sv, FileKind::Image},
    {8, "WEBP"sv, FileKind::Image},
    {8, "WAVE"sv, FileKind::Audio},
    {8, "AVI "sv, FileKind::Video},
    {8, "AIFF"sv, FileKind::Audio},
    {0, "ID3"sv, FileKind::Audio},
    {0, "fLaC"sv, FileKind::Audio},
    {0, "OggS"sv, FileKind::Audio},
    {4, "ftypM4A"sv, FileKind::Audio},
    {4, "ftyp"sv, FileKind::Video},
    {0, "\0\0\1\xBA"sv, FileKind::Video},
    {0, "\x1A\x45\xDF\xA3"sv, FileKind::Video},
    {0, "\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C"sv, FileKind::Video},
    {0, "%PDF-"sv, FileKind::Pdf},
    {0, "PK\3\4"sv, FileKind::Office},
};

/// True for an MPEG transport stream: each packet begins with the same byte, perhaps behind four bytes of time.
bool is_transport_stream(std::string_view head)
{
    struct Packets {
        std::size_t first, size;
    };

    constexpr std::size_t fewest = 5;
    constexpr char sync = 'G';
    for (const Packets& packets : {Packets{0, 188}, Packets{4, 192}}) {
        std::size_t count = 0;
        for (std::size_t at = packets.first; at < head.size() && head[at] == sync; at += packets.size)
            ++count;
        if (count >= fewest && packets.first + count * packets.size >= head.size())
            return true;
    }
    return false;
}

/// True for an Ogg file with pictures in it. Each stream begins with a page of its own, and these come before all
/// others (RFC 3533, 4 and 6).
bool is_ogg_film(std::string_view head)
{
    constexpr std::size_t flags_at = 5, count_at = 26, lengths_at = 27;
    constexpr char first_of_stream = 2;
    while (head.size() > lengths_at && head.starts_with("OggS") && (head[flags_at] & first_of_stream) != 0) {
        const std::string_view lengths = head.substr(lengths_at, little_endian(head.substr(count_at, 1)));
        head.remove_prefix(lengths_at + lengths.size());
        for (const std::string_view mark : {"\x80theora"sv, "\1video\0"sv, "BBCD\0"sv})
            if (head.starts_with(mark))
                return true;
        for (const char length : lengths)
            head.remove_prefix(std::min<std::size_t>(static_cast<unsigned char>(length), head.size()));
    }
    return false;
}

}

FileKind kind_by_content(std::string_view head)
{
    if (is_transport_stream(head) || is_ogg_film(head))
        return FileKind::Video;
    for (const auto& row : magics)
        if (head.size() > row.offset && head.substr(row.offset).starts_with(row.bytes))
            return row.kind;
    return FileKind::Other;
}

}
