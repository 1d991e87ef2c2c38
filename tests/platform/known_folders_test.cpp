#include "platform/known_folders.h"
#include "platform/paths.h"

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

namespace {

/// Null takes the variable out.
void put(const char* name, const char* value)
{
    value ? setenv(name, value, 1) : unsetenv(name);
}

TEST(KnownFolders, UserSettings)
{
    const std::string own_home = getpwuid(getuid())->pw_dir;
    const std::u16string fallback = platform::from_host_path(own_home + "/.config");

    struct Row {
        const char *xdg, *home;
        std::u16string expected;
    };

    const std::vector<Row> rows{
        {"/x/conf/", "/home/u", u"C:\\x\\conf"},
        {"relative", "/home/u", u"C:\\home\\u\\.config"},
        {"", "/home/u/", u"C:\\home\\u\\.config"},
        {nullptr, "/h\\\xFF", u"C:\\h\uF05C\xDCFF\\.config"},
        {nullptr, "relative", fallback},
        {nullptr, nullptr, fallback},
        {"/", nullptr, u"C:"},
    };
    for (const Row& row : rows) {
        put("XDG_CONFIG_HOME", row.xdg);
        put("HOME", row.home);
        EXPECT_EQ(platform::user_settings_folder(), row.expected);
    }
}

TEST(KnownFolders, MachineSettings)
{
    const std::vector<std::pair<const char*, std::vector<std::u16string>>> rows{
        {nullptr, {u"C:\\etc\\xdg"}},
        {"", {u"C:\\etc\\xdg"}},
        {"a:b", {u"C:\\etc\\xdg"}},
        {"/a:/b", {u"C:\\a", u"C:\\b"}},
        {"rel::/b/:/c", {u"C:\\b", u"C:\\c"}},
    };
    for (const auto& [value, expected] : rows) {
        put("XDG_CONFIG_DIRS", value);
        EXPECT_EQ(platform::machine_settings_folders(), expected);
    }
}

TEST(KnownFolders, ProgramFolder)
{
    const auto folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    EXPECT_EQ(platform::to_host_path(platform::program_folder()), folder.native());
}

}
