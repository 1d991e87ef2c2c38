#pragma once

#include "platform/host/properties/subject_file.h"

#include <memory>

struct zip;

namespace platform {

/// A packed document's files.
class ZipArchive
{
public:
    /// `file` must outlive the object.
    explicit ZipArchive(SubjectFile& file);

    bool is_open() const { return archive_ != nullptr; }

    /// Content of a file of the archive, its first 128 KiB at the most. Empty when it isn't there, is encrypted or
    /// broken.
    std::string content(const char* name) const;

private:
    struct Discard {
        void operator()(zip* archive) const;
    };

    std::unique_ptr<zip, Discard> archive_;
};

}
