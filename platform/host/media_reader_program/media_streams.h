#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace platform {

/// What MediaInfo knows of one file. It is fed with the bytes, so that it never opens anything by itself: it could
/// follow addresses in the network.
class MediaStreams
{
public:
    /// `file` is open for reading.
    explicit MediaStreams(int file);
    ~MediaStreams();
    MediaStreams(const MediaStreams&) = delete;
    MediaStreams& operator=(const MediaStreams&) = delete;

    /// True for a format with sound or pictures.
    bool is_known() const;

    /// UTF-8, cut at U+0000 and at what no property is longer than, of the first stream of its kind; `name` as
    /// "Video;Width". Empty when the file doesn't tell.
    std::string field(std::string_view name) const;

private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
};

}
