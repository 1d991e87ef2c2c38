#include "platform/host/properties/heif_exif.h"

#include "platform/byte_order.h"

#include <algorithm>

namespace platform {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t largest_meta = 1 << 20, largest_exif = 65'533;

/// Takes big-endian numbers off the front; behind the end all are 0.
class Cursor
{
public:
    explicit Cursor(std::string_view bytes) : bytes_(bytes) {}

    bool at_end() const { return bytes_.empty(); }

    std::string_view take_bytes(std::uint64_t count)
    {
        const auto taken = bytes_.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(count, bytes_.size())));
        bytes_.remove_prefix(taken.size());
        return taken;
    }

    std::uint64_t take(std::size_t size) { return big_endian(take_bytes(size)); }

private:
    std::string_view bytes_;
};

struct Box {
    std::string_view type, content;
};

/// The next box: its size with the head of 8 bytes, its type, its content (ISO/IEC 14496-12, 4.2). An empty type for
/// what is none.
Box take_box(Cursor& cursor)
{
    constexpr std::uint64_t head = 8;
    const std::uint64_t size = cursor.take(4);
    const std::string_view type = cursor.take_bytes(4);
    return size < head ? Box() : Box{type, cursor.take_bytes(size - head)};
}

std::string_view content_of(std::string_view boxes, std::string_view type)
{
    for (Cursor cursor(boxes); !cursor.at_end();)
        if (const Box box = take_box(cursor); box.type == type || box.type.empty())
            return box.content;
    return {};
}

/// The content of the file's "meta" box, behind its version.
std::string meta_boxes(SubjectFile& file)
{
    constexpr std::size_t head = 8, version = 4;
    constexpr int most_boxes = 20;
    std::uint64_t at = 0;
    for (int i = 0; i < most_boxes; ++i) {
        const std::string start = file.read_text(at, head);
        Cursor cursor(start);
        const std::uint64_t size = cursor.take(4);
        if (size < head + version)
            return {};
        if (start.ends_with("meta"))
            return file.read_text(at + head + version, std::min<std::uint64_t>(size - head - version, largest_meta));
        at += size;
    }
    return {};
}

/// The number of the item with Exif data (8.11.6); 0 when there is none.
std::uint64_t exif_item(std::string_view item_information)
{
    Cursor cursor(item_information);
    const bool is_wide = cursor.take(4) >> 24 != 0;
    cursor.take(is_wide ? 4 : 2);
    while (!cursor.at_end()) {
        const Box box = take_box(cursor);
        Cursor entry(box.content);
        constexpr std::uint64_t wide_version = 3;
        const std::uint64_t version = entry.take(4) >> 24, item = entry.take(version >= wide_version ? 4 : 2);
        entry.take(2);
        if (box.type.empty() || entry.take_bytes(4) == "Exif"sv)
            return box.type.empty() ? 0 : item;
    }
    return 0;
}

struct Place {
    std::uint64_t offset = 0, length = 0;
};

/// Where the item's first piece stands in the file (8.11.3); no length when that isn't told.
Place place_of(std::uint64_t wanted, std::string_view item_locations)
{
    Cursor cursor(item_locations);
    const std::uint64_t version = cursor.take(4) >> 24;
    const auto sizes = static_cast<std::size_t>(cursor.take(2));
    const auto size_of = [sizes](int nibble) { return sizes >> (4 * nibble) & 15; };
    const std::uint64_t count = cursor.take(version < 2 ? 2 : 4);
    for (std::uint64_t i = 0; i < count && !cursor.at_end(); ++i) {
        const std::uint64_t item = cursor.take(version < 2 ? 2 : 4);
        const bool is_in_file = version == 0 || (cursor.take(2) & 15) == 0;
        cursor.take(2);
        const std::uint64_t base = cursor.take(size_of(1)), pieces = cursor.take(2);
        const std::size_t index_size = version == 0 ? 0 : size_of(0);
        Cursor piece(cursor.take_bytes(pieces * (index_size + size_of(3) + size_of(2))));
        if (item != wanted)
            continue;
        piece.take(index_size);
        const std::uint64_t offset = piece.take(size_of(3)), length = piece.take(size_of(2));
        return is_in_file ? Place{base + offset, length} : Place();
    }
    return {};
}

}

std::string heif_exif(SubjectFile& file)
{
    const std::string meta = meta_boxes(file);
    const std::uint64_t item = exif_item(content_of(meta, "iinf"));
    const Place place = item == 0 ? Place() : place_of(item, content_of(meta, "iloc"));
    constexpr std::uint64_t lead = 4;
    if (place.length <= lead)
        return {};
    // First the distance of the TIFF structure from here.
    const std::string start = file.read_text(place.offset, lead);
    const std::uint64_t distance = lead + Cursor(start).take(lead);
    if (distance >= place.length)
        return {};
    return file.read_text(place.offset + distance, std::min(place.length - distance, std::uint64_t{largest_exif}));
}

}
