#include "property_text.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <thread>
#include <vector>

using platform::FileProperties;
using platform::PropertyType;

namespace {

std::u16string sample(std::string_view name)
{
    return platform::from_host_path(std::string(SAMPLES_FOLDER "/") + std::string(name));
}

struct Row {
    std::string file, libraries, name, expected;
};

std::vector<Row> expected_rows()
{
    std::vector<Row> rows;
    std::ifstream file(EXPECTED_PROPERTIES);
    Row row;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('[')) {
            row.file = line.substr(1, line.find(']') - 1);
            row.libraries = line.substr(line.find(']') + 2);
        } else if (const auto end = line.find(" = "); end != line.npos && !line.starts_with('#')) {
            row.name = line.substr(0, end);
            row.expected = line.substr(end + 3);
            rows.push_back(row);
        }
    }
    return rows;
}

bool has(const std::vector<std::u16string>& names, std::string_view short_name)
{
    return std::ranges::count(names, property_name(short_name)) == 1;
}

TEST(Properties, OfSamples)
{
    const std::map<std::string_view, bool> built{
        {"always", true},    {"qtgui", WITH_QTGUI},   {"exif", WITH_EXIF}, {"media", WITH_TAGLIB && WITH_MEDIAINFO},
        {"qpdf", WITH_QPDF}, {"libzip", WITH_LIBZIP},
    };
    std::map<std::string, FileProperties> files;
    const auto rows = expected_rows();
    EXPECT_GT(rows.size(), 200U);
    for (const Row& row : rows) {
        // One of two libraries that complete each other knows the like, not what is expected here.
        if (row.libraries == "media" && WITH_TAGLIB != WITH_MEDIAINFO)
            continue;
        FileProperties& file = files.try_emplace(row.file, sample(row.file)).first->second;
        const std::string expected = built.at(row.libraries) ? row.expected : "-";
        EXPECT_EQ(property_text(file, row.name), expected) << row.file << ": " << row.name;
        EXPECT_TRUE(expected == "-" || has(file.names(), row.name)) << row.file << ": " << row.name;
    }
}

TEST(Properties, NamesAreThoseOfTheKind)
{
    // Runs of names by what stands between their first two dots; * where there is only one dot.
    const std::pair<const char*, const char*> rows[] = {
        {"Documents", "*"},
        {"stations.json", "*"},
        {"Photos/Harbour.jpg", "* Image Photo GPS"},
        {"Sounds/Morning Bell.mp3", "* Media Music Audio"},
        {"Films/Test Card.mp4", "* Media Music Audio Video Media Video"},
        {"Documents/Tide tables.pdf", "* Document"},
        {"gone.mp3", ""},
    };
    if (!(WITH_QTGUI && WITH_EXIF && WITH_TAGLIB && WITH_MEDIAINFO && WITH_QPDF && WITH_LIBZIP))
        GTEST_SKIP() << "only a build with all libraries offers all names";
    for (const auto& [file, expected] : rows) {
        std::string groups, last;
        for (const auto& name : FileProperties(sample(file)).names()) {
            const std::string text = host_text(name).substr(7);
            const std::string group = text.find('.') == text.npos ? "*" : text.substr(0, text.find('.'));
            if (group != last)
                groups += (groups.empty() ? "" : " ") + group;
            last = group;
            EXPECT_NE(platform::property_type(name), PropertyType::Empty) << text;
            EXPECT_NE(platform::property_display_name(name), u"") << text;
        }
        EXPECT_EQ(groups, expected) << file;
    }
    for (const auto& [file, name] : {std::pair{"Documents", "Size"},
                                     {"Photos/Harbour.jpg", "Language"},
                                     {"Documents/Tide tables.pdf", "Comment"},
                                     {"Sounds/bell.wav", "Video.TotalBitrate"}})
        EXPECT_FALSE(has(FileProperties(sample(file)).names(), name)) << file << ": " << name;
    EXPECT_EQ(platform::property_type(u"System.Music.Artist"), PropertyType::StringVector);
    EXPECT_EQ(platform::property_type(u"System.Photo.DateTaken"), PropertyType::FileTime);
    EXPECT_EQ(platform::property_type(u"System.None"), PropertyType::Empty);
}

/// A file's kind is told by its content where the name says nothing.
TEST(Properties, WithoutExtensionAndThroughLinks)
{
    const TempFolder folder;
    const std::string song = SAMPLES_FOLDER "/Sounds/Morning Bell.mp3", photo = SAMPLES_FOLDER "/Photos/Harbour.jpg";
    std::filesystem::copy_file(song, folder.host("song"));
    std::filesystem::copy_file(photo, folder.host("\xFF\\photo"));
    folder.make_link("link.mp3", "song");
    const auto text = [&folder](const char* name, std::string_view property) {
        FileProperties file(folder.path(name));
        return property_text(file, property);
    };
    EXPECT_EQ(text("song", "Title"), WITH_TAGLIB || WITH_MEDIAINFO ? "Morning Bell" : "-");
    EXPECT_EQ(text("\xFF\\photo", "Photo.CameraModel"), WITH_EXIF ? "VO-1 Sample" : "-");
    EXPECT_EQ(text("\xFF\\photo", "FileName"), "\uFFFD\\photo");
    EXPECT_EQ(text("link.mp3", "Title"), WITH_TAGLIB || WITH_MEDIAINFO ? "Morning Bell" : "-");
    EXPECT_EQ(text("link.mp3", "Size"), "0 | 0 bytes");
}

/// What is no regular file has no content; to open a fifo would wait for ever.
TEST(Properties, OnlyRegularFilesAreOpened)
{
    const TempFolder folder;
    mkfifo(folder.host("fifo.mp3").c_str(), 0600);
    mkfifo(folder.host("fifo").c_str(), 0600);
    mkfifo(folder.host("fifo.mkv").c_str(), 0600);
    folder.make_folder("folder.jpg");
    folder.make_link("to fifo.docx", "fifo");
    folder.make_link("to nothing.pdf", "gone");
    folder.make_link("zero.png", "/dev/zero");
    folder.write("empty.mp4");
    for (const char* const name :
         {"fifo.mp3", "fifo", "fifo.mkv", "folder.jpg", "to fifo.docx", "to nothing.pdf", "zero.png", "empty.mp4"}) {
        FileProperties file(folder.path(name));
        EXPECT_EQ(property_text(file, "Title"), "-") << name;
        EXPECT_EQ(property_text(file, "Image.Dimensions"), "-") << name;
        EXPECT_EQ(property_text(file, "Video.FrameWidth"), "-") << name;
        EXPECT_FALSE(file.names().empty()) << name;
    }
    const auto type_of = [&folder](const char* name) {
        FileProperties file(folder.path(name));
        return property_text(file, "MIMEType") + ", " + property_text(file, "ItemTypeText");
    };
    EXPECT_EQ(type_of("fifo"), "inode/fifo, pipe");
    EXPECT_EQ(type_of("fifo.mp3"), "inode/fifo, pipe");
    EXPECT_EQ(type_of("to nothing.pdf"), "inode/symlink, symbolic link");
    EXPECT_EQ(type_of("zero.png"), "inode/chardevice, character device");
    EXPECT_FALSE(has(FileProperties(folder.path("fifo.mp3")).names(), "Title"));
}

TEST(Properties, OnSeveralThreads)
{
    const auto texts_of_all = [rows = expected_rows()] {
        std::string result;
        for (const Row& row : rows) {
            FileProperties file(sample(row.file));
            result += property_text(file, row.name) + "\n";
        }
        return result;
    };
    const std::string expected = texts_of_all();
    std::vector<std::string> results(4);
    {
        std::vector<std::jthread> threads;
        for (auto& result : results)
            threads.emplace_back([&] { result = texts_of_all(); });
    }
    for (const auto& result : results)
        EXPECT_EQ(result, expected);
}

}
