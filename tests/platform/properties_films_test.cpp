#include "platform/host/properties/leading_numbers.h"
#include "platform/paths.h"
#include "platform/properties.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

using platform::FileProperties;

namespace {

/// The value as text, "-" when absent.
std::string text_of(FileProperties& file, std::u16string_view name)
{
    const auto value = file.value(u"System." + std::u16string(name));
    if (!value)
        return "-";
    std::string bytes;
    platform::append_host_name(bytes, platform::to_text(*value).value_or(u"?"));
    return bytes;
}

FileProperties film(const std::string& name)
{
    return FileProperties(platform::from_host_path(std::string(FILMS_FOLDER "/") + name));
}

TEST(FilmProperties, OfEachContainer)
{
    struct Row {
        const char* file;
        std::u16string_view name;
        const char* expected;
    };

    const Row rows[] = {
        // TagLib reads the tags, MediaInfo the rest.
        {"silent.mp4", u"Title", "Small Film"},
        {"silent.mp4", u"Media.Duration", "10000000"},
        {"silent.mp4", u"Media.Year", "2021"},
        {"silent.mp4", u"Audio.SampleRate", "-"},
        {"silent.wmv", u"Title", "Small Film"},
        {"silent.wmv", u"Media.Duration", "10000000"},
        {"silent.wmv", u"Video.FrameWidth", "32"},
        {"silent.wmv", u"Audio.SampleRate", "-"},
        {"silent.wmv", u"Audio.ChannelCount", "-"},
        {"silent.wmv", u"Audio.EncodingBitrate", "-"},
        {"silent.wmv", u"Audio.Format", "-"},
        {"sounding.wmv", u"Audio.SampleRate", "8000"},
        {"sounding.wmv", u"Audio.ChannelCount", "1"},
        {"sounding.wmv", u"Audio.Format", "WMA"},
        {"sounding.wmv", u"Audio.IsVariableBitRate", "-"},
        {"sounding.avi", u"Title", "Small Film"},
        {"sounding.avi", u"Author", "Ada Ring"},
        {"sounding.avi", u"Music.DisplayArtist", "Ada Ring"},
        {"sounding.avi", u"Video.Director", "-"},
        {"sounding.avi", u"Media.Year", "2021"},
        {"sounding.avi", u"Audio.IsVariableBitRate", "0"},
        {"silent.mkv", u"Title", "Small Film"},
        {"silent.mkv", u"Music.Artist", "Ada Ring"},
        {"silent.mkv", u"Music.AlbumTitle", "Reels"},
        {"silent.mkv", u"Music.Genre", "Still"},
        {"silent.mkv", u"Media.Year", "2021"},
        {"silent.mkv", u"Comment", "Made of a test signal"},
        {"silent.ts", u"Kind", "video"},
        {"silent.ts", u"Video.FrameHeight", "24"},
        {"silent.ts", u"Audio.SampleRate", "-"},
    };
    for (const auto& row : rows) {
        FileProperties file = film(row.file);
        std::string name;
        platform::append_host_name(name, row.name);
        EXPECT_EQ(text_of(file, row.name), row.expected) << row.file << ": " << name;
    }
}

/// Two libraries know the length of this film, each a bit differently.
TEST(FilmProperties, DoNotDependOnWhatWasAskedBefore)
{
    const std::u16string path = platform::from_host_path(SAMPLES_FOLDER "/Films/Test Card.mp4");
    FileProperties first(path), last(path);
    EXPECT_EQ(text_of(first, u"Media.Duration"), "21280000");
    EXPECT_EQ(text_of(last, u"Video.FrameWidth"), "64");
    EXPECT_EQ(text_of(last, u"Media.Duration"), "21280000");
}

/// Source files share the names of transport streams.
TEST(FilmProperties, TransportStreamsAreToldByTheirContent)
{
    const TempFolder folder;
    std::filesystem::copy_file(FILMS_FOLDER "/silent.ts", folder.host("film.mts"));
    std::filesystem::copy_file(FILMS_FOLDER "/silent.ts", folder.host("film"));
    folder.write("code.ts", "Goods.push(1); // G\n");
    folder.write("letters.ts", std::string(10, 'G'));

    struct Row {
        const char* file;
        const char* kind;
        const char* width;
    };

    for (const Row& row : {Row{"film.mts", "video", "32"}, Row{"film", "video", "32"},
                           Row{"code.ts", "document", "-"}, Row{"letters.ts", "document", "-"}}) {
        FileProperties file(folder.path(row.file));
        EXPECT_EQ(text_of(file, u"Kind"), row.kind) << row.file;
        EXPECT_EQ(text_of(file, u"Video.FrameWidth"), row.width) << row.file;
    }
}

TEST(FilmProperties, Years)
{
    struct Row {
        std::u16string_view text;
        std::uint64_t year;
    };

    for (const Row& row :
         {Row{u"2024", 2024}, Row{u"2024-03-05", 2024}, Row{u"20240305", 2024}, Row{u"UTC 2024-03-05 06:07:08", 2024},
          Row{u"2024/2025", 2024}, Row{u"201905", 2019}, Row{u"20190512103000", 2019}, Row{u"5.3.2024", 0},
          Row{u"24", 0}, Row{u"0000", 0}, Row{u"May 2024", 0}, Row{u"", 0}})
        EXPECT_EQ(platform::leading_year(row.text).value_or(0), row.year)
            << std::string(row.text.begin(), row.text.end());
    EXPECT_EQ(platform::leading_number(u"3/12"), 3U);
    EXPECT_EQ(platform::leading_number(u"1234567890"), std::nullopt);
}

}
