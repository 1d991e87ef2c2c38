#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace platform {

/// Reads a regular file from its start. Fifos, sockets and devices are never opened: they count as unreadable.
/// One object serves one thread.
class FileReader
{
public:
    /// `path` in drive or server form, long-path prefix allowed; links are followed.
    explicit FileReader(std::u16string_view path);
    ~FileReader();
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;

    bool is_open() const { return descriptor_ >= 0; }

    /// Fills the front of `buffer` and returns how many bytes it got: less than asked for only at the end of the
    /// file, 0 when nothing is left or the read failed.
    std::size_t read(std::span<std::byte> buffer);

private:
    int descriptor_ = -1;
};

}
