#include "host_root.h"
#include "platform/files.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <vector>

namespace {

TEST(LinkTarget, FinalPathOrNothing)
{
    const TempFolder folder;
    folder.write("real/file");
    mkfifo(folder.host("real/fifo").c_str(), 0600);
    const std::vector<std::array<std::string, 3>> rows{
        // link, its text, target below the folder ("-" for nothing)
        {"one", "real/file", "real/file"},
        {"two", "one", "real/file"},
        {"absolute", folder.host("two"), "real/file"},
        {"folder", "real", "real"},
        {"slash", "real/", "real"},
        {"through", "folder/../real/./file", "real/file"},
        {"folder/inside", "fifo", "real/fifo"},
        {"pipe", "folder/inside", "real/fifo"},
        {"self", ".", ""},
        {"dangling", "gone", "-"},
        {"file as folder", "real/file/", "-"},
        {"below file", "real/file/..", "-"},
        {"circle a", "circle b", "-"},
        {"circle b", "circle a", "-"},
    };
    for (const auto& [name, text, target] : rows)
        folder.make_link(name, text);
    for (const auto& [name, text, target] : rows)
        EXPECT_EQ(platform::link_target(folder.path(name)), target == "-" ? u"" : folder.path(target)) << name;
    EXPECT_EQ(platform::link_target(u"\\\\?\\" + folder.path("one")), folder.path("real/file"));
    EXPECT_EQ(platform::link_target(folder.make_link("top", "/")), u"C:\\");
    for (const char* no_link : {"", "real", "real/file", "folder/file", "gone"})
        EXPECT_EQ(platform::link_target(folder.path(no_link)), u"") << no_link;
    EXPECT_EQ(platform::link_target(u""), u"");
}

TEST(LinkTarget, AtMostFortyLinks)
{
    const TempFolder folder;
    folder.write("link0");
    for (int i = 1; i <= 41; ++i)
        folder.make_link("link" + std::to_string(i), "link" + std::to_string(i - 1));
    EXPECT_EQ(platform::link_target(folder.path("link40")), folder.path("link0"));
    EXPECT_EQ(platform::link_target(folder.path("link41")), u"");
}

TEST(LinkTarget, ServerForm)
{
    const TempFolder folder;
    const HostRoot root(folder.host());
    folder.write("net/srv/disk/file");
    folder.write("local");
    folder.make_link("net/srv/disk/near", "file");
    folder.make_link("net/srv/disk/far", "../../../local");
    folder.make_link("net/srv/disk/share", ".");
    folder.make_link("net/srv/disk/server", "..");
    folder.make_link("net/srv/linked", "disk");
    folder.make_link("drive", "net/srv/disk/file");
    folder.make_link("outside", "/");
    const std::vector<std::pair<std::u16string, std::u16string>> rows{
        {u"\\\\srv\\disk\\near", u"\\\\srv\\disk\\file"},
        {u"\\\\?\\UNC\\srv\\disk\\near", u"\\\\srv\\disk\\file"},
        {u"\\\\srv\\linked\\near", u"\\\\srv\\disk\\file"},
        {u"\\\\srv\\disk\\far", u"C:\\local"},
        {u"\\\\srv\\disk\\share", u"\\\\srv\\disk"},
        {u"\\\\srv\\disk\\server", u"C:\\net\\srv"},
        {u"C:\\net\\srv\\disk\\near", u"C:\\net\\srv\\disk\\file"},
        {u"C:\\drive", u"C:\\net\\srv\\disk\\file"},
        {u"C:\\outside", u"C:\\"},
    };
    for (const auto& [path, target] : rows)
        EXPECT_EQ(platform::link_target(path), target) << std::string(path.begin(), path.end());
}

}
