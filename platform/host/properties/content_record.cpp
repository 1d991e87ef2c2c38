#include "platform/host/properties/content_record.h"

#include "platform/host/properties/file_stamp.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

struct Kept {
    std::shared_ptr<FileRecord> record;
    FileStamp stamp;
};

/// A text goes on to the next item when it is done with one; some stay for folders whose texts are around others'.
/// The last used one stands first. A record takes 4 MiB when someone set out to fill it, else some KiB.
thread_local std::array<Kept, 4> kept_records;

bool is_of(const Kept& kept, std::u16string_view path, const FileStamp& stamp)
{
    return kept.record && kept.record->file.path() == path && kept.stamp.own == stamp.own &&
           kept.stamp.target == stamp.target;
}

}

std::shared_ptr<FileRecord> content_record(std::u16string_view path)
{
    const auto stamp = file_stamp(path);
    if (!stamp || !stamp->is_settled)
        return std::make_shared<FileRecord>(path);
    auto place = std::ranges::find_if(kept_records, [&](const Kept& kept) { return is_of(kept, path, *stamp); });
    if (place == kept_records.end()) {
        place = std::prev(kept_records.end());
        *place = {std::make_shared<FileRecord>(path), *stamp};
    }
    std::rotate(kept_records.begin(), place, std::next(place));
    return kept_records.front().record;
}

}
