#pragma once

#include "platform/files.h"
#include "platform/host/descriptor.h"
#include "platform/host/properties/file_kind.h"
#include "platform/host/properties/read_allowance.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The file whose properties are asked for. It is opened at the first look at its content, and only when it is a
/// regular file. The libraries read through `read_at`, which ends when they ask for more than any honest file needs.
class SubjectFile
{
public:
    /// In drive or server form.
    explicit SubjectFile(std::u16string_view path);

    const std::u16string& path() const { return path_; }

    /// The last component; the whole path for a root.
    std::u16string_view name() const;
    /// With its dot; empty when the name has none.
    std::u16string_view extension() const;
    /// The format that the extension names; the content needn't agree.
    FileFormat named_format() const;

    /// Empty when the path leads nowhere.
    const std::optional<FileAttributes>& attributes() const { return attributes_; }

    /// `Other` for what is no regular file.
    FileKind kind();

    /// What the path leads to, links followed: the type bits of st_mode. 0 when it leads nowhere.
    unsigned host_type();

    /// -1 when the path leads to no regular file that may be read.
    int descriptor();
    std::uint64_t size();

    /// The first 4096 bytes, or fewer.
    const std::string& head();

    /// Begins a new library's allowance.
    void start_allowance();
    /// Copies up to `count` bytes from `offset`; 0 at the end, at a failure and when the allowance is used up.
    std::size_t read_at(std::uint64_t offset, char* out, std::size_t count);
    /// The bytes from `offset` on, `count` at the most.
    std::string read_text(std::uint64_t offset, std::size_t count);

    bool has_allowance() const { return allowance_.is_left(); }

    /// Gives the descriptor back; the next look at the content opens the file again.
    void close();

private:
    std::u16string path_;
    std::optional<FileAttributes> attributes_;
    bool is_opened_ = false;
    Descriptor descriptor_;
    std::uint64_t size_ = 0;
    std::optional<std::string> head_;
    std::optional<FileKind> kind_;
    std::optional<unsigned> host_type_;
    ReadAllowance allowance_;

    void open();
};

}
