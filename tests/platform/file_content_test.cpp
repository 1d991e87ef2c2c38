#include "platform/file_reader.h"
#include "platform/files.h"
#include "raw_content.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <thread>
#include <vector>

namespace {

TEST(FileContent, ReadsWholeFilesAndPipes)
{
    const TempFolder folder;
    std::string error = "untouched";
    for (const std::size_t size : {0u, 1u, 65'535u, 65'536u, 65'537u, 1'000'000u}) {
        const std::string content(size, 'x');
        EXPECT_EQ(platform::read_file(folder.write("file", content), error), content);
        mkfifo(folder.host("fifo").c_str(), 0600);
        std::thread writer([&] { std::ofstream(folder.host("fifo")) << content; });
        EXPECT_EQ(platform::read_file_or_pipe(folder.path("fifo"), error), content);
        writer.join();
    }
    EXPECT_FALSE(platform::read_file(u"C:\\proc\\self\\status", error).value_or("").empty());
    EXPECT_EQ(error, "untouched");

    folder.make_link("loop", "loop");
    folder.make_link("null", "/dev/null");
    for (const auto& [name, words] : {std::pair{"", "Is a directory"},
                                      {"gone", "No such file or directory"},
                                      {"file/x", "Not a directory"},
                                      {"fifo", "Not a regular file"},
                                      {"null", "Not a regular file"},
                                      {"loop", "Too many levels of symbolic links"}}) {
        EXPECT_FALSE(platform::read_file(folder.path(name), error));
        EXPECT_EQ(error, words);
    }
}

TEST(FileContent, Replaces)
{
    const TempFolder folder;
    folder.write("file", "old");
    const mode_t mask = umask(007);
    EXPECT_EQ(platform::replace_content(folder.path("new"), "x"), platform::Replacement::Done);
    umask(mask);
    EXPECT_EQ(std::filesystem::status(folder.host("new")).permissions(), std::filesystem::perms(0660));
    EXPECT_EQ(platform::replace_content(folder.path("file"), std::string(3'000'000, 'y')),
              platform::Replacement::Done);
    EXPECT_EQ(content_of(folder.host("file")), std::string(3'000'000, 'y'));
    EXPECT_FALSE(std::filesystem::exists(folder.host("file+")));
}

TEST(FileContent, FailuresLeaveFilesAsTheyWere)
{
    const TempFolder folder;
    folder.write("file", "old");
    folder.write("sub/inside", "kept");
    mkfifo(folder.host("fifo").c_str(), 0600);
    folder.make_folder("busy+");
    for (const char* name : {"gone/x", "file/x", "busy"})
        EXPECT_EQ(platform::replace_content(folder.path(name), "x"), platform::Replacement::NotWritten) << name;
    for (const char* name : {"sub", "fifo"})
        EXPECT_EQ(platform::replace_content(folder.path(name), "x"), platform::Replacement::NotReplaced) << name;
    EXPECT_TRUE(std::filesystem::is_fifo(folder.host("fifo")));
    for (const char* name : {"file", "new"})
        EXPECT_EQ(platform::replace_content(folder.path(name), "x", [] { return false; }),
                  platform::Replacement::Declined);
    EXPECT_FALSE(std::filesystem::exists(folder.host("new")) || std::filesystem::exists(folder.host("file+")));
    EXPECT_EQ(content_of(folder.host("file")) + content_of(folder.host("sub/inside")), "oldkept");
}

TEST(FileContent, ReaderFillsItsBuffer)
{
    const TempFolder folder;
    folder.write("file", "0123456789");
    platform::FileReader reader(folder.make_link("link", "file"));
    ASSERT_TRUE(reader.is_open());
    std::array<std::byte, 8> buffer;
    EXPECT_EQ(reader.read(buffer), 8u);
    EXPECT_EQ(buffer[7], std::byte{'7'});
    std::filesystem::remove(folder.host("file"));
    EXPECT_EQ(reader.read(buffer), 2u);
    EXPECT_EQ(buffer[1], std::byte{'9'});
    EXPECT_EQ(reader.read(buffer), 0u);
}

TEST(FileContent, ReaderGoesOnAfterShortReads)
{
    // The kernel gives this file page by page.
    std::vector<std::byte> buffer(1'000'000);
    const int descriptor = open("/proc/self/maps", O_RDONLY);
    const ssize_t at_once = read(descriptor, buffer.data(), buffer.size());
    close(descriptor);
    EXPECT_GT(platform::FileReader(u"C:\\proc\\self\\maps").read(buffer), static_cast<std::size_t>(at_once));
}

TEST(FileContent, ReaderOpensRegularFilesOnly)
{
    const TempFolder folder;
    mkfifo(folder.host("fifo").c_str(), 0600);
    folder.make_link("dangling", "gone");
    std::array<std::byte, 8> buffer;
    for (const std::u16string& path : {folder.path(), folder.path("fifo"), folder.path("gone"),
                                       folder.path("dangling"), std::u16string(u"C:\\dev\\zero"), std::u16string()}) {
        platform::FileReader reader(path);
        EXPECT_FALSE(reader.is_open());
        EXPECT_EQ(reader.read(buffer), 0u);
    }
}

}
