#include "platform/file_reader.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "support/temp_folder.h"

#include <boost/filesystem/exception.hpp>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <climits>

namespace {

/// Opens the folder one name at a time, so that the test doesn't rest on what it tests.
int open_step_by_step(std::string_view host_path)
{
    int folder = open("/", O_PATH | O_DIRECTORY);
    while (!host_path.empty()) {
        host_path.remove_prefix(1);
        const std::string name(host_path.substr(0, host_path.find('/')));
        const int next = openat(folder, name.c_str(), O_PATH | O_DIRECTORY);
        close(folder);
        folder = next;
        host_path.remove_prefix(name.size());
    }
    return folder;
}

TEST(LongPaths, EveryOperation)
{
    const TempFolder folder;
    std::u16string deep = folder.path();
    for (int i = 0; i < 40; ++i)
        deep.append(u"\\").append(250, static_cast<char16_t>(u'a' + i % 26));
    const std::string host = platform::to_host_path(deep);
    ASSERT_GT(host.size(), 2u * PATH_MAX);

    platform::create_directories(deep);
    const int descriptor = open_step_by_step(host);
    ASSERT_GE(descriptor, 0);
    EXPECT_EQ(platform::replace_content(deep + u"\\file", "old"), platform::Replacement::Done);
    EXPECT_EQ(symlinkat("here/./file", descriptor, "link"), 0);
    EXPECT_EQ(symlinkat(".", descriptor, "here"), 0);
    EXPECT_EQ(platform::replace_content(deep + u"\\link", "content"), platform::Replacement::Done);
    EXPECT_EQ(faccessat(descriptor, "file", F_OK, 0), 0);
    close(descriptor);

    std::string error;
    EXPECT_EQ(platform::read_file(deep + u"\\file", error), "content");
    std::array<std::byte, 10> buffer;
    EXPECT_EQ(platform::FileReader(deep + u"\\link").read(buffer), 7u);
    EXPECT_EQ(platform::file_attributes(deep + u"\\file")->size, 7u);
    EXPECT_TRUE(platform::file_attributes(deep + u"\\")->is_folder);
    std::size_t entries = 0;
    platform::for_each_entry(deep, [&](auto&&...) { ++entries; });
    EXPECT_EQ(entries, 3u);
    EXPECT_EQ(platform::link_target(deep + u"\\here"), deep);
    EXPECT_EQ(platform::link_target(deep + u"\\link"), deep + u"\\file");
    EXPECT_TRUE(platform::exists(deep + u"\\here"));
    EXPECT_FALSE(platform::exists(deep + u"\\file+"));

    EXPECT_FALSE(platform::read_file(deep + u"\\gone\\" + deep.substr(3), error));
    EXPECT_EQ(error, "No such file or directory");
    EXPECT_FALSE(platform::read_file(u"C:\\" + std::u16string(9000, u'x'), error));
    EXPECT_EQ(error, "File name too long");
    EXPECT_THROW(platform::create_directories(folder.path(std::string(300, 'x'))),
                 boost::filesystem::filesystem_error);
}

}
