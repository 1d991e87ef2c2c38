#pragma once

#include "platform/host/properties/property_bag.h"
#include "platform/host/properties/subject_file.h"

#include <map>
#include <memory>

namespace platform {

/// What one reader found.
struct Findings {
    PropertyBag bag;
    /// The reader knew the format: what it didn't find is not there.
    bool are_complete = false;
};

/// What readers found in one file so far.
struct FileRecord {
    explicit FileRecord(std::u16string_view path) : file(path) {}

    SubjectFile file;
    /// By the readers' flags, those that looked at the file. Apart, so that of two libraries with a value for one
    /// name the first counts, whichever was asked before.
    std::map<unsigned, Findings> findings;
};

/// The record of the path's content. A thread keeps those of its last few files, so that a text with several
/// properties of one file reads it once. One comes back as long as the file's identity, size and times are the same;
/// else a new one begins. Both the record and the file's descriptor in it are the calling thread's.
std::shared_ptr<FileRecord> content_record(std::u16string_view path);

}
