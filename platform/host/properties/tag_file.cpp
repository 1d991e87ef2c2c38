#include "platform/host/properties/tag_file.h"

#include "platform/host/properties/tag_frames.h"

#include <aifffile.h>
#include <apefile.h>
#include <asffile.h>
#include <flacfile.h>
#include <mp4file.h>
#include <mpcfile.h>
#include <mpegfile.h>
#include <oggflacfile.h>
#include <opusfile.h>
#include <speexfile.h>
#include <trueaudiofile.h>
#include <vorbisfile.h>
#include <wavfile.h>
#include <wavpackfile.h>

namespace platform {

namespace {

/// What TagLib makes of a file.
struct Opened {
    std::unique_ptr<TagLib::File> file;
    /// Where an ID3 tag begins that was hidden from TagLib; 0 for none.
    long hidden_tag = 0;
};

template <typename File>
Opened with_frames(TagStream& stream)
{
    return {std::make_unique<File>(&stream, TagFrames::instance(), true, TagLib::AudioProperties::Fast)};
}

template <typename File>
Opened plainly(TagStream& stream)
{
    return {std::make_unique<File>(&stream, true, TagLib::AudioProperties::Fast)};
}

/// A file of chunks, of which one can be an ID3 tag.
template <typename File>
class Chunks final : public File
{
public:
    using File::File;

    long tag_place() const
    {
        for (unsigned i = 0; i < this->chunkCount(); ++i)
            if (this->chunkName(i) == "ID3 " || this->chunkName(i) == "id3 ")
                return static_cast<long>(this->chunkOffset(i));
        return 0;
    }
};

/// TagLib would make the frames of such a file with no factory but its own.
template <typename File>
Opened without_tag(TagStream& stream)
{
    stream.hide_tags(true);
    auto file = std::make_unique<Chunks<File>>(&stream, true, TagLib::AudioProperties::Fast);
    stream.hide_tags(false);
    const long tag_place = file->tag_place();
    return {std::move(file), tag_place};
}

struct TypeRow {
    /// True for a file that begins like one of the type; null when only the extensions tell.
    bool (*matches)(TagLib::IOStream*);
    FileFormat format;
    Opened (*open)(TagStream&);
};

using namespace TagLib;

// Asked in this order. FLAC in Ogg has the mark of plain FLAC too, so it comes first; what an MP3 file begins with is
// found in many others, so it comes last.
const TypeRow types[] = {
    {Ogg::FLAC::File::isSupported, FileFormat::Ogg, plainly<Ogg::FLAC::File>},
    {FLAC::File::isSupported, FileFormat::Flac, with_frames<FLAC::File>},
    {Ogg::Vorbis::File::isSupported, FileFormat::Ogg, plainly<Ogg::Vorbis::File>},
    {Ogg::Opus::File::isSupported, FileFormat::Ogg, plainly<Ogg::Opus::File>},
    {Ogg::Speex::File::isSupported, FileFormat::Ogg, plainly<Ogg::Speex::File>},
    {MP4::File::isSupported, FileFormat::Mp4, plainly<MP4::File>},
    {ASF::File::isSupported, FileFormat::Asf, plainly<ASF::File>},
    {RIFF::WAV::File::isSupported, FileFormat::Wav, without_tag<RIFF::WAV::File>},
    {RIFF::AIFF::File::isSupported, FileFormat::Aiff, without_tag<RIFF::AIFF::File>},
    {APE::File::isSupported, FileFormat::Ape, plainly<APE::File>},
    {MPC::File::isSupported, FileFormat::Musepack, plainly<MPC::File>},
    {WavPack::File::isSupported, FileFormat::WavPack, plainly<WavPack::File>},
    {TrueAudio::File::isSupported, FileFormat::TrueAudio, with_frames<TrueAudio::File>},
    {MPEG::File::isSupported, FileFormat::Mpeg, with_frames<MPEG::File>},
};

/// The type that the extension names, when the content agrees, else the first whose content it is.
const TypeRow* type_of(TagStream& stream, FileFormat named, FileKind kind)
{
    for (const auto& type : types)
        if (type.format == named && type.matches(&stream))
            return &type;
    for (const auto& type : types) {
        // A film has what looks like the beginning of an MP3 file somewhere.
        const bool is_unlikely = kind == FileKind::Video && type.matches == MPEG::File::isSupported;
        if (!is_unlikely && type.matches(&stream))
            return &type;
    }
    return nullptr;
}

/// TagLib takes the numbers of the last stream for those of the sound, a film's pictures included.
bool has_sound_alone(SubjectFile& file)
{
    constexpr std::size_t most_header = 256 << 10;
    constexpr std::string_view sound("\x40\x9E\x69\xF8\x4D\x5B\xCF\x11\xA8\xFD\x00\x80\x5F\x5C\x44\x2B", 16);
    constexpr std::string_view pictures("\xC0\xEF\x19\xBC\x4D\x5B\xCF\x11\xA8\xFD\x00\x80\x5F\x5C\x44\x2B", 16);
    const std::string header = file.read_text(0, most_header);
    return header.find(sound) != header.npos && header.find(pictures) == header.npos;
}

}

TagFile::TagFile(SubjectFile& file)
{
    if (file.descriptor() < 0)
        return;
    stream_ = std::make_unique<TagStream>(file);
    const TypeRow* const type = type_of(*stream_, file.named_format(), file.kind());
    if (!type)
        return;
    Opened opened = type->open(*stream_);
    file_ = std::move(opened.file);
    if (!file_->isValid())
        file_.reset();
    else if (opened.hidden_tag != 0)
        hidden_tag_ = std::make_unique<ID3v2::Tag>(file_.get(), opened.hidden_tag, TagFrames::instance());
    if (type->matches == ASF::File::isSupported)
        knows_sound_ = has_sound_alone(file);
}

PropertyMap TagFile::tags() const
{
    return hidden_tag_ && !hidden_tag_->isEmpty() ? hidden_tag_->properties() : file_->properties();
}

namespace {

template <typename Type>
bool is(const File& file)
{
    return dynamic_cast<const Type*>(&file) != nullptr;
}

template <typename... Types>
int bits_of(const AudioProperties& properties)
{
    int result = 0;
    const auto ask = [&result](const auto* matching) { result = matching ? matching->bitsPerSample() : result; };
    (ask(dynamic_cast<const Types*>(&properties)), ...);
    return result;
}

}

std::string_view format_name(const File& file)
{
    struct Row {
        bool (*matches)(const File&);
        std::string_view name;
    };

    static constexpr Row rows[] = {
        {is<MPEG::File>, "MPEG Audio"}, {is<FLAC::File>, "FLAC"},
        {is<Ogg::FLAC::File>, "FLAC"},  {is<Ogg::Vorbis::File>, "Vorbis"},
        {is<Ogg::Opus::File>, "Opus"},  {is<Ogg::Speex::File>, "Speex"},
        {is<ASF::File>, "WMA"},         {is<RIFF::WAV::File>, "PCM"},
        {is<RIFF::AIFF::File>, "PCM"},  {is<APE::File>, "Monkey's Audio"},
        {is<MPC::File>, "Musepack"},    {is<WavPack::File>, "WavPack"},
        {is<TrueAudio::File>, "TTA"},
    };
    if (const auto* const mp4 = dynamic_cast<const MP4::Properties*>(file.audioProperties()))
        return mp4->codec() == MP4::Properties::ALAC ? "ALAC" : "AAC";
    for (const auto& row : rows)
        if (row.matches(file))
            return row.name;
    return {};
}

int sample_size(const AudioProperties& properties)
{
    return bits_of<FLAC::Properties, RIFF::WAV::Properties, RIFF::AIFF::Properties, APE::Properties,
                   WavPack::Properties, TrueAudio::Properties, MP4::Properties, ASF::Properties>(properties);
}

}
