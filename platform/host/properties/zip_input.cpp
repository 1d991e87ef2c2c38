#include "platform/host/properties/zip_input.h"

#include <zip.h>

#include <cerrno>
#include <memory>

namespace platform {

namespace {

struct ZipInput {
    SubjectFile& file;
    std::uint64_t position = 0;
    zip_error_t error{};
};

zip_int64_t read(ZipInput& input, void* data, zip_uint64_t size)
{
    // libzip would take an early end for a short file, and go on.
    if (!input.file.has_allowance()) {
        zip_error_set(&input.error, ZIP_ER_READ, EFBIG);
        return -1;
    }
    const std::size_t count = input.file.read_at(input.position, static_cast<char*>(data), size);
    input.position += count;
    return static_cast<zip_int64_t>(count);
}

zip_int64_t seek(ZipInput& input, void* data, zip_uint64_t size)
{
    const zip_int64_t target =
        zip_source_seek_compute_offset(input.position, input.file.size(), data, size, &input.error);
    if (target >= 0)
        input.position = static_cast<std::uint64_t>(target);
    return target < 0 ? -1 : 0;
}

zip_int64_t tell_size(const ZipInput& input, void* data)
{
    auto* const info = static_cast<zip_stat_t*>(data);
    zip_stat_init(info);
    info->valid = ZIP_STAT_SIZE;
    info->size = input.file.size();
    return sizeof *info;
}

zip_int64_t serve(void* user, void* data, zip_uint64_t size, zip_source_cmd_t command)
{
    auto& input = *static_cast<ZipInput*>(user);
    switch (command) {
    case ZIP_SOURCE_OPEN: input.position = 0; return 0;
    case ZIP_SOURCE_READ: return read(input, data, size);
    case ZIP_SOURCE_CLOSE: return 0;
    case ZIP_SOURCE_STAT: return tell_size(input, data);
    case ZIP_SOURCE_ERROR: return zip_error_to_data(&input.error, data, size);
    case ZIP_SOURCE_FREE: delete &input; return 0;
    case ZIP_SOURCE_SEEK: return seek(input, data, size);
    case ZIP_SOURCE_TELL: return static_cast<zip_int64_t>(input.position);
    case ZIP_SOURCE_SUPPORTS:
        return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT,
                                              ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL,
                                              ZIP_SOURCE_SUPPORTS, -1);
    default: zip_error_set(&input.error, ZIP_ER_OPNOTSUPP, 0); return -1;
    }
}

}

zip_source* make_zip_input(SubjectFile& file)
{
    auto input = std::make_unique<ZipInput>(file);
    zip_source* const source = zip_source_function_create(serve, input.get(), nullptr);
    if (source)
        static_cast<void>(input.release());
    return source;
}

}
