#include "platform/host/media_reader_program/media_streams.h"

#include "platform/host/media_reader_program/vorbis_comments.h"
#include "platform/host/properties/read_allowance.h"

#include <MediaInfo/MediaInfo.h>
#include <ZenLib/Ztring.h>

#include <sys/stat.h>

#include <cstring>
#include <vector>

namespace platform {

namespace {

using MediaInfoLib::stream_t;

stream_t kind_of(std::string_view stream)
{
    if (stream == "Video")
        return MediaInfoLib::Stream_Video;
    return stream == "Audio" ? MediaInfoLib::Stream_Audio : MediaInfoLib::Stream_General;
}

/// For the whole program, once: the least parsing that tells the fields, and no network.
void configure()
{
    static const bool is_configured = [] {
        MediaInfoLib::MediaInfo::Option_Static(L"ParseSpeed", L"0");
        MediaInfoLib::MediaInfo::Option_Static(L"Internet", L"No");
        return true;
    }();
    static_cast<void>(is_configured);
}

std::uint64_t size_of(int file)
{
    struct stat info {
    };

    return fstat(file, &info) == 0 ? static_cast<std::uint64_t>(info.st_size) : 0;
}

/// Gives the bytes that the library asks for until it has seen enough. A slow disk leaves time for the answer.
void feed(MediaInfoLib::MediaInfo& info, int file)
{
    constexpr std::size_t block_size = 65'536, kept_size = 4096, finished = 8;
    constexpr auto nowhere = static_cast<std::uint64_t>(-1);
    const std::uint64_t size = size_of(file);
    ReadAllowance allowance(std::chrono::milliseconds(1500));
    // A block stands behind the end of the one before it, so that a header across both is seen whole.
    std::vector<ZenLib::int8u> bytes(kept_size + block_size);
    ZenLib::int8u* const block = bytes.data() + kept_size;
    std::size_t kept = 0;
    std::uint64_t at = 0;
    info.Open_Buffer_Init(size, 0);
    for (;;) {
        const std::size_t count =
            at < size ? allowance.read_at(file, at, reinterpret_cast<char*>(block), block_size) : 0;
        if (count == 0 || !has_honest_comments({reinterpret_cast<const char*>(block) - kept, kept + count}))
            break;
        at += count;
        if ((info.Open_Buffer_Continue(block, count) & finished) != 0)
            break;
        const std::size_t next_kept = std::min(kept_size, kept + count);
        std::memmove(block - next_kept, block + count - next_kept, next_kept);
        kept = next_kept;
        if (const std::uint64_t target = info.Open_Buffer_Continue_GoTo_Get(); target != nowhere) {
            kept = target == at ? kept : 0;
            at = target;
            info.Open_Buffer_Init(size, at);
        }
    }
    info.Open_Buffer_Finalize();
}

/// Without half a character at the end.
void shorten(std::string& text)
{
    // Three bytes for each unit of the longest text that a property keeps.
    constexpr std::size_t longest = 98'304;
    text.resize(std::min(text.size(), text.find('\0')));
    if (text.size() <= longest)
        return;
    std::size_t end = longest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    text.resize(end);
}

}

struct MediaStreams::Handle {
    MediaInfoLib::MediaInfo info;
};

MediaStreams::MediaStreams(int file)
{
    configure();
    handle_ = std::make_unique<Handle>();
    feed(handle_->info, file);
}

MediaStreams::~MediaStreams() = default;

bool MediaStreams::is_known() const
{
    return handle_->info.Count_Get(MediaInfoLib::Stream_Audio) > 0 ||
           handle_->info.Count_Get(MediaInfoLib::Stream_Video) > 0;
}

std::string MediaStreams::field(std::string_view name) const
{
    const std::size_t end_of_stream = std::min(name.find(';'), name.size());
    const std::string_view field = name.substr(std::min(end_of_stream + 1, name.size()));
    const std::wstring wide(field.begin(), field.end());
    const auto stream = kind_of(name.substr(0, end_of_stream));
    std::string text = ZenLib::Ztring(handle_->info.Get(stream, 0, wide)).To_UTF8();
    shorten(text);
    return text;
}

}
