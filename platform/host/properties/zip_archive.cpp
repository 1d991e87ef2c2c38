#include "platform/host/properties/zip_archive.h"

#include <zip.h>

#include <fcntl.h>

#include <algorithm>

namespace platform {

namespace {

using namespace std::string_view_literals;

/// Far more than an honest document says of itself; to parse what is longer takes noticeable time.
constexpr std::size_t most_content = 512 << 10;

/// Whether every list of contents that could be meant is small: the list is read whole when the archive is opened.
bool has_small_directory(SubjectFile& file)
{
    constexpr std::uint64_t longest_end = 65'557, largest_directory = 4 << 20;
    constexpr std::size_t size_at = 12, end_size = 22;
    const std::uint64_t start = file.size() > longest_end ? file.size() - longest_end : 0;
    const std::string end = file.read_text(start, longest_end);
    bool is_found = false;
    for (std::size_t at = 0; (at = end.find("PK\5\6"sv, at)) != end.npos; ++at) {
        if (end.size() - at < end_size)
            break;
        std::uint64_t size = 0;
        for (std::size_t i = 4; i-- > 0;)
            size = size << 8 | static_cast<unsigned char>(end[at + size_at + i]);
        if (size > largest_directory)
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
    Descriptor copy(fcntl(file.descriptor(), F_DUPFD_CLOEXEC, 0));
    int error = 0;
    archive_.reset(zip_fdopen(copy.get(), ZIP_RDONLY, &error));
    // On success the archive owns the descriptor.
    if (archive_)
        copy.release();
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
