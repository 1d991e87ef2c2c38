#include "platform/host/properties/media_streams.h"

#include "platform/host/properties/vorbis_comments.h"

#include <MediaInfo/MediaInfo.h>

#include <QString>

#include <vector>

namespace platform {

namespace {

using MediaInfoLib::stream_t;

stream_t kind_of(MediaStreams::Stream stream)
{
    switch (stream) {
    case MediaStreams::Stream::Video: return MediaInfoLib::Stream_Video;
    case MediaStreams::Stream::Audio: return MediaInfoLib::Stream_Audio;
    case MediaStreams::Stream::General: break;
    }
    return MediaInfoLib::Stream_General;
}

/// For the whole process, once: the least parsing that tells the fields, and no network.
void configure()
{
    static const bool is_configured = [] {
        MediaInfoLib::MediaInfo::Option_Static(L"ParseSpeed", L"0");
        MediaInfoLib::MediaInfo::Option_Static(L"Internet", L"No");
        return true;
    }();
    static_cast<void>(is_configured);
}

/// Gives the bytes that the library asks for until it has seen enough.
void feed(MediaInfoLib::MediaInfo& info, SubjectFile& file)
{
    constexpr std::size_t block_size = 65'536, finished = 8;
    constexpr auto nowhere = static_cast<std::uint64_t>(-1);
    std::vector<char> block(block_size);
    std::uint64_t at = 0;
    info.Open_Buffer_Init(file.size(), 0);
    for (;;) {
        const std::size_t count = file.read_at(at, block.data(), block.size());
        if (count == 0 || !has_honest_comments({block.data(), count}))
            break;
        at += count;
        const std::size_t state =
            info.Open_Buffer_Continue(reinterpret_cast<const ZenLib::int8u*>(block.data()), count);
        if ((state & finished) != 0)
            break;
        if (const std::uint64_t target = info.Open_Buffer_Continue_GoTo_Get(); target != nowhere) {
            at = target;
            info.Open_Buffer_Init(file.size(), at);
        }
    }
    info.Open_Buffer_Finalize();
}

}

struct MediaStreams::Handle {
    MediaInfoLib::MediaInfo info;
};

MediaStreams::MediaStreams(SubjectFile& file)
{
    if (file.descriptor() < 0)
        return;
    configure();
    handle_ = std::make_unique<Handle>();
    feed(handle_->info, file);
}

MediaStreams::~MediaStreams() = default;

bool MediaStreams::is_known() const
{
    return handle_ && (handle_->info.Count_Get(MediaInfoLib::Stream_Audio) > 0 ||
                       handle_->info.Count_Get(MediaInfoLib::Stream_Video) > 0);
}

std::string MediaStreams::field(Stream stream, const char* name) const
{
    if (!handle_)
        return {};
    const std::wstring wide = QString::fromLatin1(name).toStdWString();
    return QString::fromStdWString(handle_->info.Get(kind_of(stream), 0, wide)).toStdString();
}

}
