#include "platform/host/properties/leading_numbers.h"
#include "property_text.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

using platform::FileProperties;

namespace {

/// Two libraries know the length of this film, each a bit differently.
TEST(FilmProperties, DoNotDependOnWhatWasAskedBefore)
{
    const std::u16string path = platform::from_host_path(SAMPLES_FOLDER "/Films/Test Card.mp4");
    FileProperties first(path), last(path);
    EXPECT_EQ(property_text(first, "Media.Duration"), "21280000 | 00:00:02");
    EXPECT_EQ(property_text(last, "Video.FrameWidth"), "64 | 64 pixels");
    EXPECT_EQ(property_text(last, "Media.Duration"), "21280000 | 00:00:02");
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

    for (const Row& row : {Row{"film.mts", "video", "32 | 32 pixels"}, Row{"film", "video", "32 | 32 pixels"},
                           Row{"code.ts", "document", "-"}, Row{"letters.ts", "document", "-"}}) {
        FileProperties file(folder.path(row.file));
        EXPECT_EQ(property_text(file, "Kind"), row.kind) << row.file;
        EXPECT_EQ(property_text(file, "Video.FrameWidth"), row.width) << row.file;
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
