#pragma once

#include "platform/host/properties/subject_file.h"

#include <memory>

namespace platform {

/// What MediaInfo knows of one file. It is fed with the bytes, so that it never opens anything by itself: it could
/// follow addresses in the network.
class MediaStreams
{
public:
    enum class Stream { General, Video, Audio };

    explicit MediaStreams(SubjectFile& file);
    ~MediaStreams();
    MediaStreams(const MediaStreams&) = delete;
    MediaStreams& operator=(const MediaStreams&) = delete;

    /// True for a format with sound or pictures.
    bool is_known() const;

    /// UTF-8, of the first stream of its kind; empty when the file doesn't tell.
    std::string field(Stream stream, const char* name) const;

private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
};

}
