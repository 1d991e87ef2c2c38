#include "child_processes.h"
#include "platform/host/properties/xml_fields.h"
#include "platform/properties.h"
#include "raw_content.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <random>

using platform::FileProperties;

#ifdef __SANITIZE_ADDRESS__
/// Freed memory that the sanitizer keeps back is not the reader's.
extern "C" const char* __asan_default_options()
{
    return "quarantine_size_mb=16";
}
#endif

namespace {

/// Some bytes changed, or set to extremes, or a piece cut out, doubled or the end cut off.
std::string mutated(std::string content, std::mt19937& random)
{
    const auto below = [&random](std::size_t limit) { return random() % std::max<std::size_t>(limit, 1); };
    for (std::size_t i = 1 + below(4); i > 0 && !content.empty(); --i) {
        // The structures that matter stand at the front.
        const std::size_t at = below(below(2) == 0 ? std::min<std::size_t>(content.size(), 512) : content.size());
        const std::size_t length = below(std::min<std::size_t>(content.size() - at, 64)) + 1;
        switch (below(6)) {
        case 0: content[at] = static_cast<char>(random()); break;
        case 1: content[at] = static_cast<char>(content[at] ^ (1 << below(8))); break;
        case 2: content.replace(at, length, std::string(length, below(2) == 0 ? '\xFF' : '\0')); break;
        case 3: content.erase(at, length); break;
        case 4: content.insert(at, content.substr(at, length)); break;
        case 5: content.resize(at); break;
        }
    }
    return content;
}

void read_all(const std::u16string& path)
{
    FileProperties file(path);
    for (const auto& name : file.names())
        file.display_text(name);
}

/// A greater number can be asked for in VELLUMARK_MUTATIONS.
int mutations_a_file()
{
    const char* const number = std::getenv("VELLUMARK_MUTATIONS");
    return number ? std::atoi(number) : 60;
}

TEST(Properties, BrokenFilesAreReadQuicklyAndSilently)
{
    const TempFolder folder;
    std::mt19937 random(2024);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    std::string slow;
    for (const char* const name :
         {"Photos/Harbour.jpg", "Photos/IMG_0001.png", "Sounds/Morning Bell.mp3", "Sounds/Evening Bell.flac",
          "Sounds/Night Bell.ogg", "Sounds/bell.wav", "Films/Test Card.mp4", "../tests/platform/films/silent.mkv",
          "../tests/platform/films/sounding.avi", "../tests/platform/films/sounding.wmv",
          "../tests/platform/films/silent.ts", "Documents/Tide tables.pdf", "Documents/Report.docx",
          "Documents/Notes.odt"}) {
        const std::string content = content_of(std::string(SAMPLES_FOLDER "/") + name);
        const std::string extension = std::filesystem::path(name).extension();
        for (int i = 0; i < mutations_a_file(); ++i) {
            const auto path = folder.write("broken" + extension, mutated(content, random));
            const std::clock_t start = std::clock();
            read_all(path);
            if (std::clock() - start > 5 * CLOCKS_PER_SEC)
                slow += std::string(name) + " " + std::to_string(i) + "\n";
        }
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(slow, "");
    EXPECT_LT(peak_megabytes(), 512);
}

/// Items that have the most pieces, each told in no bytes.
std::string picture_with_empty_pieces()
{
    std::string places("\0\0\0\0\0\0\xFF\xFF", 8);
    for (int i = 0; i < 0xFFFF; ++i)
        places.append("\0\1\0\0\xFF\xFF", 6);
    const std::string item = box("infe", std::string("\2\0\0\0\0\7\0\0Exif", 12));
    const std::string items = box("iinf", std::string("\0\0\0\0\0\1", 6) + item);
    return box("ftyp", "heicxxxxheic") + box("meta", std::string(4, '\0') + items + box("iloc", places));
}

template <typename Action>
double processor_seconds(Action action)
{
    const std::clock_t start = std::clock();
    action();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(Properties, MadeUpFilesTakeNoTime)
{
    const TempFolder folder;
    const auto picture = folder.write("pieces.heic", picture_with_empty_pieces());
    EXPECT_LT(processor_seconds([&] { read_all(picture); }), 2);
}

#if WITH_LIBZIP
TEST(Properties, DocumentsAreReadUpToWhatTakesTime)
{
    std::string attributes;
    for (int i = 0; i < 50'000; ++i)
        attributes += " a" + std::to_string(i) + "=''";
    const std::string start = "<r x='>'><title>Tides</title>", end = "<subject>Moon</subject></r>";
    EXPECT_EQ(platform::xml_fields(start + end).size(), 3U);
    for (const std::string& between :
         {"<b" + attributes + "/>", "<!-- ' --><b c='>'" + attributes + "/>", std::string("<!DOCTYPE r>")})
        EXPECT_LT(processor_seconds([&] {
                      const auto fields = platform::xml_fields(start + between + end);
                      EXPECT_TRUE(fields.contains(u"title") && !fields.contains(u"subject"));
                  }),
                  1);
}
#endif

}
