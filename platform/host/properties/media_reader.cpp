#include "platform/byte_order.h"
#include "platform/host/properties/leading_numbers.h"
#include "platform/host/properties/media_readers.h"
#include "platform/host/properties/moments.h"
#include "platform/host/properties/readers.h"
#include "platform/host/properties/text_bytes.h"

#include <algorithm>
#include <cmath>
#include <exception>

namespace platform {

namespace {

enum class Shape { Text, List, Whole, Year, Milliseconds, Moment, FourCc, BitRateMode };

struct FieldRow {
    /// As MediaTexts names it.
    std::string_view field;
    Shape shape;
    std::u16string_view name;
    double factor = 1;
};

// Where a name stands twice, the first field that the file has wins. Those in capitals are tags of Matroska, which
// MediaInfo passes on under their own names.
constexpr FieldRow fields[] = {
    {"General;Title", Shape::Text, u"System.Title"},
    {"General;Subject", Shape::Text, u"System.Subject"},
    {"General;SUBJECT", Shape::Text, u"System.Subject"},
    {"General;Performer", Shape::List, u"System.Author"},
    {"General;ARTIST", Shape::List, u"System.Author"},
    {"General;Keywords", Shape::List, u"System.Keywords"},
    {"General;KEYWORDS", Shape::List, u"System.Keywords"},
    {"General;Comment", Shape::Text, u"System.Comment"},
    {"General;Description", Shape::Text, u"System.Comment"},
    {"General;Copyright", Shape::Text, u"System.Copyright"},
    {"General;Encoded_Application", Shape::Text, u"System.ApplicationName"},
    {"Audio;Language", Shape::Text, u"System.Language"},
    {"General;Duration", Shape::Milliseconds, u"System.Media.Duration"},
    {"General;Recorded_Date", Shape::Year, u"System.Media.Year"},
    {"General;Released_Date", Shape::Year, u"System.Media.Year"},
    {"General;DATE", Shape::Year, u"System.Media.Year"},
    {"General;Publisher", Shape::Text, u"System.Media.Publisher"},
    {"General;Label", Shape::Text, u"System.Media.Publisher"},
    {"General;PUBLISHER", Shape::Text, u"System.Media.Publisher"},
    {"General;EncodedBy", Shape::Text, u"System.Media.EncodedBy"},
    {"General;Encoded_Date", Shape::Moment, u"System.Media.DateEncoded"},
    {"General;Performer", Shape::List, u"System.Music.Artist"},
    {"General;ARTIST", Shape::List, u"System.Music.Artist"},
    {"General;Performer", Shape::Text, u"System.Music.DisplayArtist"},
    {"General;ARTIST", Shape::Text, u"System.Music.DisplayArtist"},
    {"General;Album", Shape::Text, u"System.Music.AlbumTitle"},
    {"General;ALBUM", Shape::Text, u"System.Music.AlbumTitle"},
    {"General;Album/Performer", Shape::Text, u"System.Music.AlbumArtist"},
    {"General;ALBUM_ARTIST", Shape::Text, u"System.Music.AlbumArtist"},
    {"General;Track/Position", Shape::Whole, u"System.Music.TrackNumber"},
    {"General;Genre", Shape::List, u"System.Music.Genre"},
    {"General;GENRE", Shape::List, u"System.Music.Genre"},
    {"General;Composer", Shape::List, u"System.Music.Composer"},
    {"General;COMPOSER", Shape::List, u"System.Music.Composer"},
    {"General;Director", Shape::List, u"System.Video.Director"},
    {"General;DIRECTOR", Shape::List, u"System.Video.Director"},
    {"Audio;BitRate", Shape::Whole, u"System.Audio.EncodingBitrate"},
    {"Audio;SamplingRate", Shape::Whole, u"System.Audio.SampleRate"},
    {"Audio;BitDepth", Shape::Whole, u"System.Audio.SampleSize"},
    {"Audio;Channel(s)", Shape::Whole, u"System.Audio.ChannelCount"},
    {"Audio;Format", Shape::Text, u"System.Audio.Format"},
    {"Audio;BitRate_Mode", Shape::BitRateMode, u"System.Audio.IsVariableBitRate"},
    {"Video;Width", Shape::Whole, u"System.Video.FrameWidth"},
    {"Video;Height", Shape::Whole, u"System.Video.FrameHeight"},
    {"Video;FrameRate", Shape::Whole, u"System.Video.FrameRate", 1000},
    {"Video;FrameCount", Shape::Whole, u"System.Media.FrameCount"},
    {"Video;BitRate", Shape::Whole, u"System.Video.EncodingBitrate"},
    {"General;OverallBitRate", Shape::Whole, u"System.Video.TotalBitrate"},
    {"Video;Format", Shape::Text, u"System.Video.Compression"},
    {"Video;CodecID", Shape::FourCc, u"System.Video.FourCC"},
    {"Video;Rotation", Shape::Whole, u"System.Video.Orientation"},
};

constexpr std::string_view format_field = "General;Format";

/// The first number: several values stand as "48000 / 44100".
std::optional<double> first_number(const std::string& text)
{
    const std::string digits = text.substr(0, text.find_first_not_of("0123456789."));
    return to_double(std::u16string(digits.begin(), digits.end()));
}

void set_whole(PropertyBag& bag, std::u16string_view name, const std::string& text, double factor)
{
    const auto number = first_number(text);
    constexpr double largest = 1e18;
    if (number && *number * factor < largest)
        bag.set_count(name, static_cast<std::uint64_t>(std::llround(*number * factor)));
}

void set_year(PropertyBag& bag, std::u16string_view name, const std::string& text)
{
    if (const auto year = leading_year(decode_bytes(text)))
        bag.set_count(name, *year);
}

void set_bit_rate_mode(PropertyBag& bag, std::u16string_view name, const std::string& text)
{
    if (text == "VBR" || text == "CBR")
        bag.set(name, text == "VBR");
}

void set_four_cc(PropertyBag& bag, std::u16string_view name, const std::string& text)
{
    // More than the code of the codec can follow: "mp4v-20".
    if (text.size() < 4 || (text.size() > 4 && text[4] != '-'))
        return;
    bag.set_count(name, little_endian(std::string_view(text).substr(0, 4)));
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
    case Shape::Year: set_year(bag, row.name, text); break;
    case Shape::BitRateMode: set_bit_rate_mode(bag, row.name, text); break;
    }
}

/// Every field of the table and the format, each once.
std::string wanted_fields()
{
    std::vector<std::string_view> names{format_field};
    for (const auto& row : fields)
        if (std::ranges::find(names, row.field) == names.end())
            names.push_back(row.field);
    std::string result;
    for (const auto name : names)
        result.append(name).push_back('\0');
    return result;
}

/// In AVI files the artist is called so by the format's own description, MediaInfo calls him the director.
void mend_artist(MediaTexts& texts)
{
    const auto format = texts.find(format_field);
    if (format == texts.end() || format->second != "AVI")
        return;
    if (auto director = texts.extract("General;Director")) {
        director.key() = "General;Performer";
        texts.insert(std::move(director));
    }
}

}

bool read_media(SubjectFile& file, PropertyBag& bag)
{
    try {
        static const std::string wanted = wanted_fields();
        if (file.descriptor() < 0)
            return false;
        MediaTexts texts = media_readers().ask(file.descriptor(), wanted);
        mend_artist(texts);
        for (const auto& row : fields)
            if (const auto text = texts.find(row.field); text != texts.end())
                set_field(bag, row, text->second);
        return !texts.empty();
    } catch (const std::exception&) {
        return false;
    }
}

}
