#include "platform/host/properties/leading_numbers.h"
#include "platform/host/properties/readers.h"
#include "platform/host/properties/tag_file.h"
#include "platform/host/properties/text_bytes.h"

#include <audioproperties.h>
#include <id3v2tag.h>
#include <mpegfile.h>
#include <popularimeterframe.h>
#include <tpropertymap.h>

#include <exception>

namespace platform {

namespace {

enum class Shape { Text, List, Number, Year };

struct TagRow {
    const char* key;
    Shape shape;
    std::u16string_view name;
};

// Where a name stands twice, the first key that the file has wins.
constexpr TagRow tags[] = {
    {"TITLE", Shape::Text, u"System.Title"},
    {"SUBJECT", Shape::Text, u"System.Subject"},
    {"ARTIST", Shape::List, u"System.Author"},
    {"KEYWORDS", Shape::List, u"System.Keywords"},
    {"COMMENT", Shape::Text, u"System.Comment"},
    {"DESCRIPTION", Shape::Text, u"System.Comment"},
    {"COPYRIGHT", Shape::Text, u"System.Copyright"},
    {"ENCODING", Shape::Text, u"System.ApplicationName"},
    {"ENCODER", Shape::Text, u"System.ApplicationName"},
    {"LANGUAGE", Shape::Text, u"System.Language"},
    {"DATE", Shape::Year, u"System.Media.Year"},
    {"SUBTITLE", Shape::Text, u"System.Media.SubTitle"},
    {"LABEL", Shape::Text, u"System.Media.Publisher"},
    {"PUBLISHER", Shape::Text, u"System.Media.Publisher"},
    {"ENCODEDBY", Shape::Text, u"System.Media.EncodedBy"},
    {"ARTIST", Shape::List, u"System.Music.Artist"},
    {"ARTIST", Shape::Text, u"System.Music.DisplayArtist"},
    {"ALBUMARTIST", Shape::Text, u"System.Music.DisplayArtist"},
    {"ALBUM", Shape::Text, u"System.Music.AlbumTitle"},
    {"ALBUMARTIST", Shape::Text, u"System.Music.AlbumArtist"},
    {"TRACKNUMBER", Shape::Number, u"System.Music.TrackNumber"},
    {"DISCNUMBER", Shape::Number, u"System.Music.DiscNumber"},
    {"DISCNUMBER", Shape::Text, u"System.Music.PartOfSet"},
    {"GENRE", Shape::List, u"System.Music.Genre"},
    {"COMPOSER", Shape::List, u"System.Music.Composer"},
    {"CONDUCTOR", Shape::List, u"System.Music.Conductor"},
    {"BPM", Shape::Text, u"System.Music.BeatsPerMinute"},
    {"INITIALKEY", Shape::Text, u"System.Music.InitialKey"},
    {"MOOD", Shape::Text, u"System.Music.Mood"},
    {"LYRICS", Shape::Text, u"System.Music.Lyrics"},
};

std::u16string text_of(const TagLib::String& text)
{
    return tidy_text(decode_bytes(text.to8Bit(true)));
}

void set_found(PropertyBag& bag, std::u16string_view name, std::optional<std::uint64_t> number)
{
    if (number)
        bag.set_count(name, *number);
}

void set_tag(PropertyBag& bag, const TagRow& row, const TagLib::StringList& values)
{
    std::vector<std::u16string> texts;
    for (const auto& value : values)
        texts.push_back(text_of(value));
    const std::u16string joined = to_text(texts).value_or(u"");
    switch (row.shape) {
    case Shape::Text: bag.set_text(row.name, joined); break;
    case Shape::List: bag.set_list(row.name, texts); break;
    case Shape::Number: set_found(bag, row.name, leading_number(joined)); break;
    case Shape::Year: set_found(bag, row.name, leading_year(joined)); break;
    }
}

void set_positive(PropertyBag& bag, std::u16string_view name, int value, std::uint64_t factor)
{
    if (value > 0)
        bag.set_count(name, static_cast<std::uint64_t>(value) * factor);
}

/// False when the file has no sound that TagLib knows.
bool set_sound(PropertyBag& bag, const TagFile& opened)
{
    const TagLib::AudioProperties* const sound = opened.get()->audioProperties();
    constexpr std::uint64_t ticks_per_millisecond = 10'000;
    if (sound)
        set_positive(bag, u"System.Media.Duration", sound->lengthInMilliseconds(), ticks_per_millisecond);
    if (!sound || sound->sampleRate() <= 0 || !opened.knows_sound())
        return false;
    set_positive(bag, u"System.Audio.EncodingBitrate", sound->bitrate(), 1000);
    set_positive(bag, u"System.Audio.SampleRate", sound->sampleRate(), 1);
    set_positive(bag, u"System.Audio.ChannelCount", sound->channels(), 1);
    set_positive(bag, u"System.Audio.SampleSize", sample_size(*sound), 1);
    bag.set_text(u"System.Audio.Format", format_name(*opened.get()));
    return true;
}

/// The popularity of ID3 in 255ths, on the scale of the property by its documented stars.
void set_rating(PropertyBag& bag, TagLib::File& file)
{
    auto* const mpeg = dynamic_cast<TagLib::MPEG::File*>(&file);
    if (!mpeg || !mpeg->hasID3v2Tag())
        return;
    const auto& frames = mpeg->ID3v2Tag()->frameList("POPM");
    const auto* const frame =
        frames.isEmpty() ? nullptr : dynamic_cast<const TagLib::ID3v2::PopularimeterFrame*>(frames.front());
    const int popularity = frame ? frame->rating() : 0;
    if (popularity > 0)
        bag.set_count(u"System.Rating", popularity < 32    ? 1u
                                        : popularity < 96  ? 25u
                                        : popularity < 160 ? 50u
                                        : popularity < 224 ? 75u
                                                           : 99u);
}

void set_tags(PropertyBag& bag, const TagLib::PropertyMap& found)
{
    for (const auto& row : tags)
        if (const auto entry = found.find(row.key); entry != found.end())
            set_tag(bag, row, entry->second);
}

}

bool read_tags(SubjectFile& file, PropertyBag& bag)
{
    try {
        const TagFile opened(file);
        if (!opened.get())
            return false;
        set_tags(bag, opened.tags());
        set_rating(bag, *opened.get());
        // Of a film TagLib sees the tags and perhaps the sound, so MediaInfo is asked for what is missing.
        return set_sound(bag, opened) && file.kind() == FileKind::Audio;
    } catch (const std::exception&) {
        return false;
    }
}

}
