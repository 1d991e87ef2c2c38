#include "platform/host/properties/subject_file.h"

#include "platform/host/host_location.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>

namespace platform {

namespace {

constexpr std::chrono::seconds allowed_time{2};
constexpr std::size_t head_size = 4096;

}

SubjectFile::SubjectFile(std::u16string_view path)
    : path_(path), attributes_(file_attributes(path_)), allowance_(allowed_time)
{}

std::u16string_view SubjectFile::name() const
{
    const std::u16string_view path = path_;
    const std::size_t slash = path.rfind(u'\\');
    return slash == path.npos || slash + 1 == path.size() ? path : path.substr(slash + 1);
}

std::u16string_view SubjectFile::extension() const
{
    const std::u16string_view file_name = name();
    const std::size_t dot = file_name.rfind(u'.');
    return dot == file_name.npos ? std::u16string_view() : file_name.substr(dot);
}

FileFormat SubjectFile::named_format() const
{
    const ExtensionRow* const row = find_extension(extension());
    return row ? row->format : FileFormat::Other;
}

FileKind SubjectFile::kind()
{
    if (!kind_) {
        const ExtensionRow* const row = find_extension(extension());
        kind_ = row ? row->kind : FileKind::Other;
        if (host_type() != S_IFREG)
            kind_ = FileKind::Other;
        else if (!row || row->is_shared)
            if (const FileKind by_content = kind_by_content(head()); by_content != FileKind::Other)
                kind_ = by_content;
    }
    return *kind_;
}

unsigned SubjectFile::host_type()
{
    if (!host_type_) {
        const HostLocation location(path_);
        struct stat info;
        host_type_ = fstatat(location.folder(), location.name(), &info, 0) == 0 ? info.st_mode & S_IFMT : 0;
    }
    return *host_type_;
}

void SubjectFile::open()
{
    is_opened_ = true;
    if (host_type() != S_IFREG)
        return;
    // The file can have become a fifo since: O_NONBLOCK keeps the open from waiting for a writer.
    Descriptor descriptor = HostLocation(path_).open(O_RDONLY | O_NOCTTY | O_NONBLOCK);
    struct stat info;
    if (!descriptor || fstat(descriptor.get(), &info) != 0 || !S_ISREG(info.st_mode))
        return;
    descriptor_ = std::move(descriptor);
    size_ = static_cast<std::uint64_t>(info.st_size);
}

int SubjectFile::descriptor()
{
    if (!is_opened_)
        open();
    return descriptor_.get();
}

std::uint64_t SubjectFile::size()
{
    return descriptor() >= 0 ? size_ : 0;
}

const std::string& SubjectFile::head()
{
    if (!head_) {
        start_allowance();
        head_ = read_text(0, head_size);
    }
    return *head_;
}

void SubjectFile::close()
{
    descriptor_ = Descriptor();
    is_opened_ = false;
}

void SubjectFile::start_allowance()
{
    allowance_ = ReadAllowance(allowed_time);
}

std::size_t SubjectFile::read_at(std::uint64_t offset, char* out, std::size_t count)
{
    if (offset >= size())
        return 0;
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset));
    return allowance_.read_at(descriptor(), offset, out, wanted);
}

std::string SubjectFile::read_text(std::uint64_t offset, std::size_t count)
{
    if (offset >= size())
        return {};
    std::string result(static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset)), '\0');
    result.resize(read_at(offset, result.data(), result.size()));
    return result;
}

}
