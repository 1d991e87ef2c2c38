#include "platform/host/properties/media_streams.h"
#include "platform/host/properties/moments.h"
#include "platform/host/properties/readers.h"
#include "platform/host/properties/text_bytes.h"

#include <cmath>
#include <exception>

namespace platform {

namespace {

using Stream = MediaStreams::Stream;

enum class Shape { Text, List, Whole, Milliseconds, Moment, FourCc, Variable };

struct FieldRow {
    Stream stream;
    const char* field;
    Shape shape;
    std::u16string_view name;
    double factor = 1;
};

// Where a name stands twice, the first field that the file has wins.
constexpr FieldRow fields[] = {
    {Stream::General, "Title", Shape::Text, u"System.Title"},
    {Stream::General, "Subject", Shape::Text, u"System.Subject"},
    {Stream::General, "Performer", Shape::List, u"System.Author"},
    {Stream::General, "Keywords", Shape::List, u"System.Keywords"},
    {Stream::General, "Comment", Shape::Text, u"System.Comment"},
    {Stream::General, "Description", Shape::Text, u"System.Comment"},
    {Stream::General, "Copyright", Shape::Text, u"System.Copyright"},
    {Stream::General, "Encoded_Application", Shape::Text, u"System.ApplicationName"},
    {Stream::Audio, "Language", Shape::Text, u"System.Language"},
    {Stream::General, "Duration", Shape::Milliseconds, u"System.Media.Duration"},
    {Stream::General, "Recorded_Date", Shape::Whole, u"System.Media.Year"},
    {Stream::General, "Publisher", Shape::Text, u"System.Media.Publisher"},
    {Stream::General, "Label", Shape::Text, u"System.Media.Publisher"},
    {Stream::General, "EncodedBy", Shape::Text, u"System.Media.EncodedBy"},
    {Stream::General, "Encoded_Date", Shape::Moment, u"System.Media.DateEncoded"},
    {Stream::General, "Performer", Shape::List, u"System.Music.Artist"},
    {Stream::General, "Performer", Shape::Text, u"System.Music.DisplayArtist"},
    {Stream::General, "Album", Shape::Text, u"System.Music.AlbumTitle"},
    {Stream::General, "Album/Performer", Shape::Text, u"System.Music.AlbumArtist"},
    {Stream::General, "Track/Position", Shape::Whole, u"System.Music.TrackNumber"},
    {Stream::General, "Genre", Shape::List, u"System.Music.Genre"},
    {Stream::General, "Composer", Shape::List, u"System.Music.Composer"},
    {Stream::General, "Director", Shape::List, u"System.Video.Director"},
    {Stream::Audio, "BitRate", Shape::Whole, u"System.Audio.EncodingBitrate"},
    {Stream::Audio, "SamplingRate", Shape::Whole, u"System.Audio.SampleRate"},
    {Stream::Audio, "BitDepth", Shape::Whole, u"System.Audio.SampleSize"},
    {Stream::Audio, "Channel(s)", Shape::Whole, u"System.Audio.ChannelCount"},
    {Stream::Audio, "Format", Shape::Text, u"System.Audio.Format"},
    {Stream::Audio, "BitRate_Mode", Shape::Variable, u"System.Audio.IsVariableBitRate"},
    {Stream::Video, "Width", Shape::Whole, u"System.Video.FrameWidth"},
    {Stream::Video, "Height", Shape::Whole, u"System.Video.FrameHeight"},
    {Stream::Video, "FrameRate", Shape::Whole, u"System.Video.FrameRate", 1000},
    {Stream::Video, "FrameCount", Shape::Whole, u"System.Media.FrameCount"},
    {Stream::Video, "BitRate", Shape::Whole, u"System.Video.EncodingBitrate"},
    {Stream::General, "OverallBitRate", Shape::Whole, u"System.Video.TotalBitrate"},
    {Stream::Video, "Format", Shape::Text, u"System.Video.Compression"},
    {Stream::Video, "CodecID", Shape::FourCc, u"System.Video.FourCC"},
    {Stream::Video, "Rotation", Shape::Whole, u"System.Video.Orientation"},
};

/// The leading number: several values stand as "48000 / 44100", a date as "2019-05-01".
std::optional<double> leading_number(const std::string& text)
{
    const std::string digits = text.substr(0, text.find_first_not_of("0123456789."));
    return to_double(std::u16string(digits.begin(), digits.end()));
}

void set_whole(PropertyBag& bag, std::u16string_view name, const std::string& text, double factor)
{
    const auto number = leading_number(text);
    constexpr double largest = 1e18;
    if (number && *number * factor < largest)
        bag.set_count(name, static_cast<std::uint64_t>(std::llround(*number * factor)));
}

void set_four_cc(PropertyBag& bag, std::u16string_view name, const std::string& text)
{
    // More than the code of the codec can follow: "mp4v-20".
    if (text.size() < 4 || (text.size() > 4 && text[4] != '-'))
        return;
    std::uint64_t code = 0;
    for (std::size_t i = 4; i-- > 0;)
        code = code << 8 | static_cast<unsigned char>(text[i]);
    bag.set_count(name, code);
}

/// MediaInfo puts " / " between several values.
std::u16string with_semicolons(std::string text)
{
    for (std::size_t at = 0; (at = text.find(" / ", at)) != text.npos;)
        text.replace(at, 3, ";");
    return decode_bytes(text);
}

void set_field(PropertyBag& bag, const FieldRow& row, const std::string& text)
{
    constexpr double ticks_per_millisecond = 10'000;
    switch (row.shape) {
    case Shape::Text: bag.set_text(row.name, text); break;
    case Shape::List: bag.set_list(row.name, with_semicolons(text)); break;
    case Shape::Whole: set_whole(bag, row.name, text, row.factor); break;
    case Shape::Milliseconds: set_whole(bag, row.name, text, ticks_per_millisecond); break;
    case Shape::Moment: bag.set_time(row.name, parse_moment(text, AssumedZone::Utc)); break;
    case Shape::FourCc: set_four_cc(bag, row.name, text); break;
    case Shape::Variable: bag.set(row.name, text == "VBR"); break;
    }
}

}

bool read_media(SubjectFile& file, PropertyBag& bag)
{
    // TagLib reads these, and MediaInfo takes minutes over broken comments.
    if (file.kind() == FileKind::Audio && (file.head().starts_with("fLaC") || file.head().starts_with("OggS"))) {
        bag.set(u"System.Audio.IsVariableBitRate", true);
        return false;
    }
    try {
        const MediaStreams streams(file);
        for (const auto& row : fields)
            if (const std::string text = streams.field(row.stream, row.field); !text.empty())
                set_field(bag, row, text);
        return streams.is_known();
    } catch (const std::exception&) {
        return false;
    }
}

}
