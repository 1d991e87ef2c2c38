#include "property_text.h"
#include "raw_content.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <sys/inotify.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

using namespace std::string_literals;
using platform::FileProperties;

namespace {

const std::string song = SAMPLES_FOLDER "/Sounds/Morning Bell.mp3", other_song = SAMPLES_FOLDER "/Sounds/bell.wav";

/// Each time by a reader of its own, as one part of a text after another does.
std::string shown(const std::u16string& path, std::u16string_view name)
{
    return host_text(FileProperties(path).display_text(u"System." + std::u16string(name)).value_or(u"-"));
}

class OpenCounter
{
public:
    explicit OpenCounter(const std::string& host_path)
        : queue_(inotify_init1(IN_NONBLOCK)),
          watch_(inotify_add_watch(queue_, host_path.c_str(), IN_OPEN | IN_CLOSE_NOWRITE))
    {}

    ~OpenCounter() { close(queue_); }

    OpenCounter(const OpenCounter&) = delete;
    OpenCounter& operator=(const OpenCounter&) = delete;

    bool works() const { return watch_ >= 0; }

    /// Opens since the last call, as the file is closed between them: equal events in a row are one.
    int count()
    {
        int opens = 0;
        inotify_event event;
        while (read(queue_, &event, sizeof event) == sizeof event)
            opens += (event.mask & IN_OPEN) != 0;
        return opens;
    }

private:
    int queue_, watch_;
};

TEST(PropertyContent, IsReadOnceForSeveralProperties)
{
    constexpr bool has_reader = WITH_TAGLIB || WITH_MEDIAINFO;
    const auto path = platform::from_host_path(song);
    OpenCounter opens(song);
    ASSERT_TRUE(opens.works());
    std::string counts;
    for (const auto* const name :
         {u"Title", u"Music.Artist", u"Music.TrackNumber", u"Media.Year", u"Size", u"Title"}) {
        shown(path, name);
        counts += std::to_string(opens.count());
    }
    EXPECT_EQ(counts, has_reader ? "100000" : "000000");
}

TEST(PropertyContent, IsReadAnewWhenThePathLeadsElsewhere)
{
    if (!(WITH_TAGLIB && WITH_MEDIAINFO))
        GTEST_SKIP() << "no tags without the libraries";
    const TempFolder folder;
    folder.make_folder("a");
    folder.make_folder("b");
    std::filesystem::copy_file(song, folder.host("a/bell"));
    std::filesystem::copy_file(other_song, folder.host("b/bell"));
    const auto path = folder.path("a/bell");
    // What was read of a file that changed a moment ago is not kept, and to rename a folder leaves its files' times.
    std::this_thread::sleep_for(std::chrono::milliseconds(2100));
    const std::string first = shown(path, u"Title") + ", " + shown(path, u"Audio.SampleRate");
    std::filesystem::rename(folder.host("a"), folder.host("c"));
    std::filesystem::rename(folder.host("b"), folder.host("a"));
    EXPECT_EQ(first + "; " + shown(path, u"Title") + ", " + shown(path, u"Audio.SampleRate"),
              "Morning Bell, 44.1 kHz; -, 8 kHz");
}

/// An entry of one short, long or fraction; the value of a fraction is its place.
std::string entry(unsigned tag, unsigned type, unsigned value)
{
    return number(tag, 2) + number(type, 2) + number(1, 4) + number(value, 4);
}

/// 40 x 30 pixels, 118 dots per centimetre; the camera says 4032 x 3024.
std::string tiff(const std::string& magic)
{
    constexpr unsigned entries = 11, exif = 8 + 2 + entries * 12 + 4, fraction = exif + 2 + 2 * 12 + 4;
    return "II" + magic + number(8, 4) + number(entries, 2) + entry(0x100, 3, 40) + entry(0x101, 3, 30) +
           entry(0x102, 3, 8) + entry(0x103, 3, 1) + entry(0x106, 3, 1) + entry(0x111, 4, 0) +
           entry(0x11A, 5, fraction) + entry(0x116, 3, 30) + entry(0x117, 4, 1) + entry(0x128, 3, 3) +
           entry(0x8769, 4, exif) + number(0, 4) + number(2, 2) + entry(0xA002, 4, 4032) + entry(0xA003, 4, 3024) +
           number(0, 4) + number(118, 4) + number(1, 4);
}

std::string heif()
{
    const std::string data = number(0, 4) + tiff("*\0"s), brand = box("ftyp", "heic"s + number(0, 4));
    const auto meta = [&](std::size_t at) {
        const std::string item = number(7, 2, true);
        const std::string infe = box("infe", "\2\0\0\0"s + item + "\0\0Exif\0"s);
        const std::string place = number(at, 4, true) + number(data.size(), 4, true);
        return box("meta", "\0\0\0\0"s + box("hdlr", std::string(24, '\0')) +
                               box("iinf", number(0, 4) + number(1, 2, true) + infe) +
                               box("iloc", number(0, 4) + "\x44\0\0\1"s + item + "\0\0\0\1"s + place));
    };
    return brand + meta(brand.size() + meta(0).size() + 8) + box("mdat", data);
}

/// Of one packet.
std::string ogg_page(const std::string& packet, unsigned index)
{
    return "OggS\0"s + (index == 0 ? '\2' : '\0') + number(0, 8) + number(1, 4) + number(index, 4) + number(0, 4) +
           '\1' + number(packet.size(), 1) + packet;
}

/// 32 x 24 pixels, without a picture.
std::string theora_film()
{
    const std::string size = number(2, 2, true) + number(2, 2, true) + number(32, 3, true) + number(24, 3, true);
    const std::string rate = number(25, 4, true) + number(1, 4, true);
    return ogg_page("\x80theora\3\2\1"s + size + "\0\0"s + rate + number(0, 12), 0) +
           ogg_page("\x81theora" + number(0, 8), 1);
}

/// 32 x 24 pixels, each pack with the beginning of a picture.
std::string program_stream()
{
    const std::string picture = "\0\0\1\xB3\2\0\x18\x13\xFF\xFF\xE0\x18\0\0\1\xB8\0\x08\0\0"s +
                                "\0\0\1\0\0\x0F\xFF\xF8\0\0\1\1"s + std::string(40, '"');
    std::string result;
    for (int i = 0; i < 10; ++i)
        result += "\0\0\1\xBA\x44\0\4\0\4\1\0\0\3\xF8\0\0\1\xE0"s + number(picture.size() + 3, 2, true) +
                  "\x80\0\0"s + picture;
    return result;
}

TEST(PropertyContent, OfPicturesAndFilms)
{
    struct Row {
        const char* name;
        std::string content;
        std::u16string_view property;
        int is_built;
        const char* expected;
    };

    const std::string gif = "GIF89a\5\0\3\0"s,
                      webp = "RIFF\x1A\0\0\0WEBPVP8L\x0D\0\0\0\x2F\4\x80\0\x10\7\x10\x11\x11"s + "\x88\x88\xFE\7\0"s;
    const std::string tga = "\0\0\2"s + std::string(9, '\0') + number(1920, 2) + number(1080, 2) + "\x18\0"s;
    const std::string cursor = "\0\0\2\0\1\0\x20\x20\0\0\0\0\x18\0"s + number(40, 4) + number(22, 4);
    const std::string bmp = "BM" + number(0, 8) + number(54, 4) + number(40, 4) + number(5, 4) +
                            number(static_cast<std::uint64_t>(-3), 4) + number(1, 2) + number(16, 2);
    const std::string theora = theora_film(), camcorder = program_stream();
    const Row rows[] = {
        {"plain.tga", tga, u"Image.Dimensions", WITH_QTGUI, "1920 x 1080"},
        {"plain.tga", tga, u"Image.BitDepth", WITH_QTGUI, "24"},
        {"arrow.cur", cursor, u"Image.Dimensions", WITH_QTGUI, "32 x 32"},
        {"deep.pgm", "P5 # 8 8\n3\n2 65535\n", u"Image.BitDepth", WITH_QTGUI, "16"},
        {"deep.pgm", "P5 # 8 8\n3\n2 65535\n", u"Image.Dimensions", WITH_QTGUI, "3 x 2"},
        {"colours.bmp", bmp, u"Image.Dimensions", WITH_QTGUI, "5 x 3"},
        {"colours.bmp", bmp, u"Image.BitDepth", WITH_QTGUI, "16"},
        {"short.webp", "RIFFWEBP", u"Image.Dimensions", WITH_QTGUI, "-"},
        {"film.ogg", ogg_page("\1vorbis", 0) + theora, u"Kind", 1, "video"},
        {"film.ogg", theora, u"Video.FrameWidth", WITH_MEDIAINFO, "32 pixels"},
        {"film.mod", camcorder, u"Kind", 1, "video"},
        {"film.mod", camcorder, u"Video.FrameWidth", WITH_MEDIAINFO, "32 pixels"},
        {"song.mod", std::string(1080, '\0') + "M.K.", u"Kind", 1, "music"},
        {"few.gif", gif + "\xA1\0\0"s + std::string(12, '\0') + ";", u"Image.BitDepth", WITH_QTGUI, "2"},
        {"few.gif", gif + "\xA1\0\0"s + std::string(12, '\0') + ";", u"Image.Dimensions", WITH_QTGUI, "5 x 3"},
        {"many.gif", gif + "\0\0\0;"s, u"Image.BitDepth", WITH_QTGUI, "8"},
        {"small.webp", webp, u"Image.Dimensions", WITH_QTGUI, "5 x 3"},
        {"scan.tif", tiff("*\0"s), u"Image.Dimensions", WITH_QTGUI, "40 x 30"},
        {"scan.tif", tiff("*\0"s), u"Image.HorizontalResolution", WITH_EXIF, "118 dots/cm"},
        {"raw.nef", tiff("*\0"s), u"Image.Dimensions", WITH_EXIF, "4032 x 3024"},
        {"raw.rw2", tiff("U\0"s), u"Image.Dimensions", WITH_EXIF, "4032 x 3024"},
        {"phone.heic", heif(), u"Image.Dimensions", WITH_EXIF, "4032 x 3024"},
        {"cut.heic", heif().substr(0, 60), u"Image.Dimensions", WITH_EXIF, "-"},
    };
    const TempFolder folder;
    for (const auto& row : rows)
        EXPECT_EQ(shown(folder.write(row.name, row.content), row.property), row.is_built ? row.expected : "-")
            << row.name;
}

/// 8000 Hz, one channel, 16 bits, one tag.
std::string flac_in_ogg(const std::string& tag)
{
    const std::string stream = number(0, 10) + "\1\xF4\0\xF0"s + std::string(20, '\0');
    const std::string tags = number(0, 4) + number(1, 4) + number(tag.size(), 4) + tag;
    const std::string first = "\177FLAC\1\0\0\1fLaC\0"s, last = "\204"s;
    return ogg_page(first + number(stream.size(), 3, true) + stream, 0) +
           ogg_page(last + number(tags.size(), 3, true) + tags, 1);
}

TEST(PropertyContent, OfFlacInOgg)
{
    const TempFolder folder;
    for (const char* const name : {"calm.ogg", "calm.oga"}) {
        const auto path = folder.write(name, flac_in_ogg("MOOD=Calm"));
        EXPECT_EQ(shown(path, u"Music.Mood"), WITH_TAGLIB ? "Calm" : "-") << name;
        EXPECT_TRUE(!WITH_TAGLIB || shown(path, u"Audio.Format") == "FLAC") << name;
    }
}

/// A frame of ID3 2.3.
std::string id3_frame(const std::string& name, const std::string& content, bool is_compressed = false)
{
    return name + number(content.size(), 4, true) + '\0' + (is_compressed ? '\x80' : '\0') + content;
}

std::string id3_tag(const std::string& frames)
{
    const std::size_t size = frames.size();
    return "ID3\3\0\0\0"s + number(size >> 14 & 127, 1) + number(size >> 7 & 127, 1) + number(size & 127, 1) + frames;
}

/// TagLib would inflate without a limit.
TEST(PropertyContent, OfCompressedTags)
{
    if (!WITH_TAGLIB)
        GTEST_SKIP() << "no tags without the library";
    const std::string cover = id3_frame("APIC", std::string(70'000, '\1')), plain = id3_frame("TIT2", "\0Bell"s);
    const std::string packed = number(5, 4, true) + "\x78\1\1\5\0\xFA\xFF\0Bell\3\x80\1\x80"s;
    const std::string squeezed = id3_frame("TIT2", packed, true), sound = content_of(song).substr(346),
                      wave = content_of(other_song);
    const TempFolder folder;
    const auto title = [&](const std::string& frames) {
        const std::string tag = id3_tag(frames), chunk = wave + "id3 " + number(tag.size(), 4) + tag;
        return shown(folder.write("tagged.mp3", tag + sound), u"Title") + " " +
               shown(folder.write("tagged.wav", "RIFF" + number(chunk.size() - 8, 4) + chunk.substr(8)), u"Title");
    };
    EXPECT_EQ(title(squeezed), "- -");
    EXPECT_EQ(title(cover + plain), "Bell Bell");
    EXPECT_EQ(title(cover + squeezed), "- -");
}

}
