#include "store/json_file_reader.h"
#include "store/last_command.h"
#include "store_test.h"

#include <unistd.h>

#include <filesystem>
#include <functional>
#include <vector>

namespace {

using MVConfigTest = StoreTest;

TEST_F(MVConfigTest, FilesByKind)
{
    for (const std::u16string install : {u"C:\\App", u"C:\\App\\"}) {
        MVConfigLive::install(install);
        EXPECT_EQ(MVConfig::get_global().install_folder(), u"C:\\App\\");
        EXPECT_EQ(MVConfig::get_global().path(FileKind::Gallery), u"C:\\App\\VKGallery.json");
        EXPECT_EQ(MVConfig::get_global().path(FileKind::DefaultPresets), u"C:\\App\\VKDefaultPresets.json");
        EXPECT_EQ(MVConfig::get_global().path(FileKind::DefaultCommands), u"C:\\App\\VKCmds.json");
        EXPECT_EQ(MVConfig::get_global().path(FileKind::UserCommands), folder.path(user_file));
    }
    EXPECT_EQ(last_command_path(), folder.path(last_file));
    MVConfigLive::install(u"");
    EXPECT_EQ(MVConfig::get_global().path(FileKind::Gallery), u"VKGallery.json");
}

TEST_F(MVConfigTest, MachineWideDefaultsAreLookedForAtEachCall)
{
    const ScopedVariable folders("XDG_CONFIG_DIRS", folder.host("first") + ":" + folder.host("machine"));
    const auto defaults = [] { return MVConfig::get_global().path(FileKind::DefaultCommands); };
    EXPECT_EQ(defaults(), folder.path(shipped_file));
    folder.write(machine_file);
    EXPECT_EQ(defaults(), folder.path(machine_file));
    const std::u16string first = folder.write("first/Mirvanta Software/Vellumark/VKCmds.json");
    EXPECT_EQ(defaults(), first);
    std::filesystem::remove_all(folder.host("first"));
    std::filesystem::remove(folder.host(machine_file));
    EXPECT_EQ(defaults(), folder.path(shipped_file));
}

TEST_F(MVConfigTest, NothingIsReadOrWrittenBeforeInstall)
{
    folder.write(user_file, R"({"menuCommands":[],"extensionsPresets":[]})");
    folder.write(last_file, command_json("A"));
    MVConfig::set_global(nullptr);
    const std::vector<std::function<void()>> operations{
        [] { MVConfig::get_global(); },
        [] { commands_file::load(); },
        [] { commands_file::load_defaults(); },
        [this] { commands_file::read(folder.path(user_file)); },
        [] { commands_saving::write({}); },
        [] { read_last_command(); },
        [] { write_last_command(VellumarkCommand(u"B")); },
    };
    for (std::size_t i = 0; i < operations.size(); ++i)
        EXPECT_EQ(error_of(operations[i]), "MVConfig::set_global() has not been called, call MVConfigLive::install() "
                                           "or MVConfigTest::install()")
            << i;
    EXPECT_EQ(content(user_file) + content(last_file),
              R"({"menuCommands":[],"extensionsPresets":[]})" + command_json("A"));
}

TEST_F(MVConfigTest, NoSettingsFolder)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can take on a user that the user database doesn't know";
    const auto ask_as_unknown_user = [this] {
        unsetenv("XDG_CONFIG_HOME");
        unsetenv("HOME");
        const std::string error = setuid(54'321) == 0 ? error_of([] { user_data_folder(); }) : "no setuid";
        std::fputs(error.c_str(), stderr);
        std::_Exit(0);
    };
    EXPECT_EXIT(ask_as_unknown_user(), testing::ExitedWithCode(0), "^SHGetKnownFolderPath\\(\\) failed$");
}

TEST(JsonFileReaderException, Text)
{
    const auto text = [](int status, std::string detail) {
        const JsonFileReaderException error(u"C:\\é😀", static_cast<JsonFileStatus>(status), std::move(detail));
        return std::string(error.what());
    };
    EXPECT_EQ(text(2, ""), "C:\\é😀: Invalid JSON");
    EXPECT_EQ(text(7, ""), "C:\\é😀: Unknown Status");
}

}
