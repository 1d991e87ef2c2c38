#include "host_root.h"
#include "platform/files.h"
#include "support/temp_folder.h"

#include <boost/filesystem/exception.hpp>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>

using platform::FileAttributes;

namespace {

/// "folder", "file 3", "link to folder" ...
std::string kind(const std::optional<FileAttributes>& attributes)
{
    if (!attributes)
        return "nothing";
    const std::string type = attributes->is_folder ? "folder" : "file";
    return (attributes->is_link ? "link to " + type : type) + " " + std::to_string(attributes->size);
}

class Files : public testing::Test
{
protected:
    TempFolder folder_;

    Files()
    {
        folder_.write("file", "abc");
        folder_.make_folder("sub");
        folder_.make_link("to file", "file");
        folder_.make_link("to folder", "sub");
        folder_.make_link("to nothing", "gone");
        folder_.make_link("loop", "loop");
        folder_.write("\xFF\\\xF0\x9F\x98\x80", "odd");
        mkfifo(folder_.host("fifo").c_str(), 0600);
    }

    std::vector<std::pair<std::u16string, std::string>> expected_{
        {u"fifo", "file 0"},
        {u"file", "file 3"},
        {u"loop", "link to file 0"},
        {u"sub", "folder 0"},
        {u"to file", "link to file 0"},
        {u"to folder", "link to folder 0"},
        {u"to nothing", "link to file 0"},
        {u"\xDCFF\uF05C\U0001F600", "file 3"},
    };
};

TEST_F(Files, EntriesAndTheirAttributes)
{
    std::vector<std::pair<std::u16string, std::string>> found;
    platform::for_each_entry(folder_.path(), [&](std::u16string name, const FileAttributes& attributes) {
        const std::u16string path = folder_.path() + u"\\" + name;
        EXPECT_EQ(kind(platform::file_attributes(path)), kind(attributes));
        EXPECT_EQ(platform::file_attributes(path)->modified, attributes.modified);
        found.emplace_back(std::move(name), kind(attributes));
    });
    std::ranges::sort(found);
    EXPECT_EQ(found, expected_);
    for (const char* missing : {"gone", "file/x", "loop/x"})
        EXPECT_EQ(kind(platform::file_attributes(folder_.path(missing))), "nothing");
    EXPECT_FALSE(platform::file_attributes(u"D:\\"));
}

TEST_F(Files, Existence)
{
    for (const char* name : {"", "file", "sub", "to file", "to folder", "fifo", "loop"})
        EXPECT_TRUE(platform::exists(folder_.path(name))) << name;
    for (const char* name : {"gone", "to nothing", "file/"})
        EXPECT_FALSE(platform::exists(folder_.path(name))) << name;
    EXPECT_FALSE(platform::exists(u""));
}

TEST_F(Files, Times)
{
    constexpr std::int64_t of_1970 = 116'444'736'000'000'000;
    const std::array<timespec, 2> times{timespec{-1, 999'999'999}, timespec{1'700'000'000, 123'456'789}};
    ASSERT_EQ(utimensat(AT_FDCWD, folder_.host("to file").c_str(), times.data(), AT_SYMLINK_NOFOLLOW), 0);
    const FileAttributes link = platform::file_attributes(folder_.path("to file")).value();
    EXPECT_EQ(link.accessed, of_1970 - 1);
    EXPECT_EQ(link.modified, of_1970 + 17'000'000'001'234'567);
    EXPECT_GT(platform::file_attributes(folder_.path("file"))->modified, link.modified);
    struct statx info;
    ASSERT_EQ(statx(AT_FDCWD, folder_.host("sub").c_str(), 0, STATX_BTIME, &info), 0);
    const std::int64_t birth = info.stx_btime.tv_sec * 10'000'000 + info.stx_btime.tv_nsec / 100 + of_1970;
    EXPECT_EQ(platform::file_attributes(folder_.path("sub"))->created, (info.stx_mask & STATX_BTIME) ? birth : 0);
}

TEST_F(Files, NothingLeaksFromAThrowingVisit)
{
    const auto open_files = [] { return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}); };
    const auto before = open_files();
    for (int i = 0; i < 3; ++i)
        EXPECT_THROW(platform::for_each_entry(folder_.path(), [](auto&&...) { throw 1; }), int);
    for (const char* name : {"file", "gone", "fifo", "loop"})
        platform::for_each_entry(folder_.path(name), [](auto&&...) { ADD_FAILURE(); });
    EXPECT_EQ(open_files(), before);
}

TEST_F(Files, VanishedEntriesAreLeftOut)
{
    std::size_t seen = 0;
    platform::for_each_entry(folder_.path(), [&](auto&&...) {
        ++seen;
        std::filesystem::remove_all(folder_.host());
        std::filesystem::create_directory(folder_.host());
    });
    EXPECT_EQ(seen, 1u);
}

TEST_F(Files, OnlyTheTypeWithoutTheRightToAsk)
{
    folder_.make_folder("closed/sub");
    folder_.write("closed/file", "abc");
    chmod(folder_.host().c_str(), 0755);
    chmod(folder_.host("closed").c_str(), 0444);
    const uid_t user = geteuid();
    ASSERT_TRUE(user != 0 || seteuid(65'534) == 0); // root may ask everything
    std::vector<std::string> found;
    platform::for_each_entry(folder_.path("closed"), [&](std::u16string name, const FileAttributes& attributes) {
        found.push_back(std::string(name.begin(), name.end()) + ": " + kind(attributes));
        EXPECT_EQ(attributes.modified, 0);
    });
    EXPECT_FALSE(platform::file_attributes(folder_.path("closed/file")));
    ASSERT_EQ(seteuid(user), 0);
    chmod(folder_.host("closed").c_str(), 0755);
    std::ranges::sort(found);
    EXPECT_EQ(found, (std::vector<std::string>{"file: file 0", "sub: folder 0"}));
}

TEST_F(Files, SharesOfAServer)
{
    const HostRoot root(folder_.host());
    folder_.write("net/srv/file");
    folder_.make_folder("net/srv/disk/inner");
    folder_.make_folder("net/srv/.hidden");
    folder_.make_link("net/srv/linked", "../../sub");
    folder_.make_link("net/srv/dangling", "gone");
    std::vector<std::u16string> shares = platform::server_shares(u"srv");
    std::ranges::sort(shares);
    EXPECT_EQ(shares, (std::vector<std::u16string>{u".hidden", u"disk", u"linked"}));
    for (const std::u16string_view none : {u"", u".", u"..", u"srv/disk", u"srv\\disk", u"other", u"srv/../.."})
        EXPECT_TRUE(platform::server_shares(none).empty());
}

TEST_F(Files, CreatingFolders)
{
    platform::create_directories(folder_.path("sub/a/b"));
    platform::create_directories(folder_.path("sub/a/b"));
    platform::create_directories(folder_.path("to folder/c/"));
    EXPECT_TRUE(std::filesystem::is_directory(folder_.host("sub/a/b")));
    EXPECT_TRUE(std::filesystem::is_directory(folder_.host("sub/c")));
    for (const auto& [name, reason] : {std::pair{"file", "File exists"},
                                       {"file/x", "File exists"},
                                       {"loop/x", "Too many levels of symbolic links"}}) {
        try {
            platform::create_directories(folder_.path(name));
            ADD_FAILURE() << name;
        } catch (const boost::filesystem::filesystem_error& error) {
            EXPECT_TRUE(std::string_view(error.what()).starts_with("create_directories: " + std::string(reason)))
                << error.what();
            EXPECT_EQ(error.path1().native(), folder_.host(name));
        }
    }
    EXPECT_THROW(platform::create_directories(u"D:\\x"), boost::filesystem::filesystem_error);
}

}
