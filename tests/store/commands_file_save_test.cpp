#include "engine/commands/vellumark_command.h"
#include "engine/parts/text_part.h"
#include "platform/paths.h"
#include "store/json_file_reader.h"
#include "store/mv_command_builtin.h"
#include "store/preset_followers.h"
#include "store_test.h"

#include <filesystem>

namespace {

class CommandsFileSave : public StoreTest
{
protected:
    static void save(const StoredCommands& commands, OldFile old = OldFile::Replaced)
    {
        commands_saving::write({.text = commands_saving::text_of(commands), .old = old});
    }

    /// What is written when a file of that text is read and saved unchanged.
    std::string resaved(std::string_view text) const
    {
        save(commands_file::read(folder.write("FILE", text)));
        return content(user_file);
    }

    static constexpr std::string_view temporary_file = "user/Mirvanta/Vellumark/VKCmds.json+";
};

TEST_F(CommandsFileSave, Bytes)
{
    const auto command = std::make_shared<VellumarkCommand>(u"Ä😀/\"");
    command->set_name1(u"One");
    command->set_separator(u"\r\n\u0001");
    command->file_parts()->append(std::make_shared<ItemPartText>());
    command->set_show_in_menu(false);
    ExtensionsPreset preset;
    preset.uuid = u"1";
    preset.name = u"Images";
    preset.set_extensions(u"JPG");
    const auto builtin = std::make_shared<MVCommandBuiltin>(CommandType::Configure, u"");
    save({{builtin, command}, {command}, {preset}});

    const std::string written =
        R"({"commandType":"Vellumark","name":"Ä😀/\"","name1":"One","separator":"\r\n\u0001","startText":"",)"
        R"("endText":"","sortOrder":"as-selected","noStartEndTextIfOneItem":false,)"
        R"("fileParts":[{"text":"","item-type":"text"}],"addFilesFromFolders":false,"showUsingDefaultRules":true)";
    EXPECT_EQ(content(user_file), R"({"menuCommands":[{"commandType":"Configure","name":"","showInMenu":true},)" +
                                      written + R"(,"showInMenu":true}],"commandsLibrary":[)" + written +
                                      R"(}],"extensionsPresets":[)" + preset_json("1", "Images", "jpg") + "]}");
    EXPECT_FALSE(exists(temporary_file));
}

TEST_F(CommandsFileSave, WhatWasReadIsWrittenBack)
{
    const boost::json::value shipped = read_json_file(platform::from_host_path(SHIPPED_COMMANDS));
    EXPECT_EQ(resaved(serialize(shipped)), serialize(shipped));

    // What the tests of commands and parts leave at its default, and numbers at their ends.
    const std::string parts =
        R"({"path-type":"link-target","limit-num-parents":true,"num-parents":-2,"separator-text":"",)"
        R"("item-type":"path"},{"start":18446744073709551615,"step":0,"addThousandsSeparator":true,)"
        R"("nDigits":2147483647,"item-type":"auto-number"})";
    const std::string command =
        R"({"commandType":"Vellumark","name":"A","separator":"s","startText":"<","endText":">",)"
        R"("sortOrder":"path-length-rev","noStartEndTextIfOneItem":true,"fileParts":[)" +
        parts + R"(],"folderParts":[)" + parts +
        R"(],"addFilesFromFolders":true,"limitFolderDepth":true,"maxFolderDepth":-7,"showUsingDefaultRules":true,)"
        R"("folderFilterEnabled":true,)"
        R"("folderFilter":{"filterMode":"wildcard","filterAction":"exclude","filterPattern":"A*"})";
    const std::string file = R"({"menuCommands":[)" + command + R"(,"showInMenu":true}],"commandsLibrary":[)" +
                             command + R"(}],"extensionsPresets":[]})";
    EXPECT_EQ(resaved(file), file);
}

TEST_F(CommandsFileSave, FiltersFollowThePresets)
{
    const auto following = [](std::string_view name, const std::string& uuid, const std::string& pattern) {
        return command_json(name, R"(,"fileFilterEnabled":true,"fileFilter":{"filterPattern":")" + pattern +
                                      R"(","fileFilterPresetUuid":")" + uuid + R"("})");
    };
    const StoredCommands commands = commands_file::read(folder.write(
        "FILE", R"({"menuCommands":[)" + following("follows", "1", "old") + "," + following("lost", "9", "kept") +
                    R"(],"commandsLibrary":[)" + following("free", "", "own") + "," +
                    following("follows too", "2", "") + R"(],"extensionsPresets":[)" +
                    preset_json("1", "Images", "JPG;png") + "," + preset_json("2", "Texts", "txt") + "]}"));
    const auto filters = [](const StoredCommands& stored) {
        std::string text;
        for (const CommandList& list : {stored.menu, stored.library})
            for (const auto& entry : list) {
                const auto& command = dynamic_cast<const VellumarkCommand&>(*entry);
                text += to_utf8(command.name() + u": " + command.file_filter().filter_pattern() + u" <" +
                                command.file_filter_preset_uuid() + u">\n");
            }
        return text;
    };
    folder.make_folder(temporary_file);
    EXPECT_EQ(error_of([&] { save(commands); }), "Failed to write commands to temporary file.");
    EXPECT_EQ(filters(commands), "follows: old <1>\nlost: kept <9>\nfree: own <>\nfollows too:  <2>\n");
    std::filesystem::remove(folder.host(temporary_file));
    save(commands);
    const std::string updated = "follows: jpg;png <1>\nlost: kept <>\nfree: own <>\nfollows too: txt <2>\n";
    EXPECT_EQ(filters(commands_file::load()), updated);
    for (const CommandList& list : {commands.menu, commands.library})
        preset_followers::update(list, commands.presets);
    EXPECT_EQ(filters(commands), updated);
}

TEST_F(CommandsFileSave, WhatCantBeReplaced)
{
    folder.write(std::string(user_file) + "/in the way");
    EXPECT_EQ(error_of([] { save({}); }), "Failed to replace commands file.");
    EXPECT_FALSE(exists(temporary_file));
    std::filesystem::remove_all(folder.host("user"));
    folder.write("user", "no folder");
    EXPECT_EQ(error_of([] { save({}); }).substr(0, 18), "create_directories");
}

TEST_F(CommandsFileSave, KeepsTheOldFileWhenAsked)
{
    const auto save_error = [&] { return error_of([] { save({}, OldFile::Kept); }); };
    const std::string kept = std::string(user_file) + ".broken";
    EXPECT_EQ(save_error(), "no error");
    EXPECT_FALSE(exists(kept)) << "there was none";

    folder.write(user_file, "first");
    folder.make_folder(temporary_file);
    EXPECT_EQ(save_error(), "Failed to write commands to temporary file.");
    EXPECT_FALSE(exists(kept));
    EXPECT_EQ(content(user_file), "first");
    std::filesystem::remove(folder.host(temporary_file));
    EXPECT_EQ(save_error(), "no error");
    const std::string saved = content(user_file);

    folder.write("elsewhere", "second");
    std::filesystem::remove(folder.host(user_file));
    folder.make_link(user_file, folder.host("elsewhere"));
    EXPECT_EQ(save_error(), "no error");
    EXPECT_EQ(content(kept), "first");
    EXPECT_EQ(content(kept + "2"), "second");
    EXPECT_EQ(content("elsewhere"), saved);
}

}
