#include "platform/host/properties/zip_archive.h"

#include "platform/byte_order.h"
#include "platform/host/properties/zip_input.h"

#include <zip.h>

#include <algorithm>

namespace platform {

namespace {

using namespace std::string_view_literals;

/// Far more than an honest document says of itself; to parse what is longer takes noticeable time.
constexpr std::size_t most_content = 128 << 10;

/// Whether every list of contents that could be meant is small: the list is read whole when the archive is opened.
/// One of an archive in the form for more than 4 GB tells its size elsewhere, and documents aren't archived so.
bool has_small_directory(SubjectFile& file)
{
    constexpr std::uint64_t longest_end = 65'577, largest_directory = 4 << 20;
    constexpr std::size_t size_at = 12, end_size = 22, locator_size = 20;
    const std::uint64_t start = file.size() > longest_end ? file.size() - longest_end : 0;
    const std::string tail = file.read_text(start, longest_end);
    const std::string_view end = tail;
    bool is_found = false;
    for (std::size_t at = 0; (at = end.find("PK\5\6"sv, at)) != end.npos && end.size() - at >= end_size; ++at) {
        const bool is_large = at >= locator_size && end.substr(at - locator_size).starts_with("PK\6\7");
        if (is_large || little_endian(end.substr(at + size_at, 4)) > largest_directory)
            return false;
        is_found = true;
    }
    return is_found;
}

}

void ZipArchive::Discard::operator()(zip* archive) const
{
    zip_discard(archive);
}

ZipArchive::ZipArchive(SubjectFile& file)
{
    if (file.descriptor() < 0 || !has_small_directory(file))
        return;
    zip_source* const source = make_zip_input(file);
    archive_.reset(source ? zip_open_from_source(source, ZIP_RDONLY, nullptr) : nullptr);
    // An opened archive owns its source.
    if (source && !archive_)
        zip_source_free(source);
}

std::string ZipArchive::content(const char* name) const
{
    zip_stat_t info;
    if (!archive_ || zip_stat(archive_.get(), name, 0, &info) != 0 || (info.valid & ZIP_STAT_SIZE) == 0)
        return {};
    const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file(zip_fopen(archive_.get(), name, 0), zip_fclose);
    if (!file)
        return {};
    std::string result(static_cast<std::size_t>(std::min<std::uint64_t>(info.size, most_content)), '\0');
    const zip_int64_t count = zip_fread(file.get(), result.data(), result.size());
    result.resize(static_cast<std::size_t>(std::max<zip_int64_t>(count, 0)));
    return result;
}

}
