#include "engine/commands/checksum_comparison.h"
#include "engine_fixture.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

std::string rewritten(const std::string& json)
{
    std::string text = boost::json::serialize(make_command(json).to_json());
    std::ranges::replace(text, '"', '\'');
    return text;
}

const std::string head = "{'commandType':'Vellumark','name':'test',";
const std::string texts = "'separator':'\\n','startText':'','endText':'','sortOrder':'as-selected',"
                          "'noStartEndTextIfOneItem':false,";
const std::string parts = "'fileParts':[{'name-type':'full-name','item-type':'name'}],";
const std::string no_files = "'addFilesFromFolders':false,";

TEST(CommandJson, WritesOnlyWhatCounts)
{
    const std::string begin = head + texts + parts;
    const std::string shown = "'showUsingDefaultRules':true", ruled = no_files + "'showUsingDefaultRules':false,";
    const auto rule = [](const std::string& name, const std::string& files, const std::string& folders) {
        return "'showRule':'" + name + "','showIfFilesSelected':" + files + ",'showIfFoldersSelected':" + folders;
    };
    const std::string filters =
        "'fileFilter':{'filterMode':'extensions','filterAction':'include','filterPattern':'a',"
        "'fileFilterPresetUuid':'u'},'folderFilterEnabled':false,'folderFilter':{"
        "'filterMode':'regex','filterAction':'include','filterPattern':'('}";
    const std::vector<std::pair<std::string, std::string>> cases{
        {"{}", no_files + shown},
        {"{'folderParts':[]}", "'folderParts':[]," + no_files + shown},
        {"{'addFilesFromFolders':true,'maxFolderDepth':3}",
         "'addFilesFromFolders':true,'limitFolderDepth':false," + shown},
        {"{'addFilesFromFolders':true,'limitFolderDepth':true,'maxFolderDepth':3}",
         "'addFilesFromFolders':true,'limitFolderDepth':true,'maxFolderDepth':3," + shown},
        {"{'limitFolderDepth':true}", no_files + shown},
        {"{'showUsingDefaultRules':false,'showRule':'exactlyOneFile'}",
         ruled + rule("exactlyOneFile", "true", "false")},
        {"{'showUsingDefaultRules':false,'showIfFoldersSelected':true}",
         ruled + rule("atLeastOneFolder", "false", "true")},
        {"{'showUsingDefaultRules':false,'showIfFilesSelected':true}",
         ruled + rule("atLeastOneFile", "true", "false")},
        {"{'showUsingDefaultRules':false,'showRule':'?','showIfFilesSelected':true}",
         ruled + rule("atLeastOneItem", "true", "true")},
        {"{'fileFilterEnabled':true}", no_files + shown + ",'fileFilterEnabled':true"},
        {"{'fileFilter':{'filterPattern':'A','fileFilterPresetUuid':'u'},'folderFilterEnabled':true,'folderFilter':{"
         "'filterMode':'regex','filterPattern':'(','fileFilterPresetUuid':'u'}}",
         no_files + shown + ",'fileFilterEnabled':false," + filters},
        {"{'fileFilter':7,'fileFilterEnabled':false}", no_files + shown}};
    for (const auto& [stored, rest] : cases) {
        const std::string expected = begin + rest + "}";
        EXPECT_EQ(rewritten(stored), expected);
        EXPECT_EQ(rewritten(expected), expected) << "what was read and not changed";
    }
}

TEST(CommandJson, WrongKindsAreRefused)
{
    for (const char* json :
         {"{'name':1}", "{'separator':null}", "{'sortOrder':1}", "{'fileParts':{}}", "{'folderParts':null}",
          "{'addFilesFromFolders':'yes'}", "{'maxFolderDepth':1.5}", "{'maxFolderDepth':4294967296}",
          "{'showUsingDefaultRules':0}", "{'fileFilter':{'filterPattern':1}}", "{'showInMenu':1}"})
        EXPECT_THROW(make_command(json), std::exception) << json;
    boost::json::object object;
    for (const char* key : {"name", "separator", "fileParts"}) {
        EXPECT_EQ(error_of([&] { VellumarkCommand read(object); }), "Missing key in JSON: " + std::string(key));
        object[key] = "";
    }
    VellumarkCommand command;
    command.set_sort_order(Sort(9));
    EXPECT_THROW(command.to_json(), std::runtime_error);
}

TEST(Command, CopiesAreDeepAndEqualityIsOfAllFields)
{
    const VellumarkCommand original = make_command("{}");
    const std::vector<void (*)(VellumarkCommand&)> changes{
        [](VellumarkCommand& c) {
            c.set_parts(VellumarkCommand::Template::Files, std::make_shared<ItemPartsList>());
        },
        [](VellumarkCommand& c) { c.parts(VellumarkCommand::Template::Folders)->append(c.file_parts()->at(0)); },
        [](VellumarkCommand& c) { c.set_name(u"x"); },
        [](VellumarkCommand& c) { c.set_name1(u"x"); },
        [](VellumarkCommand& c) { c.set_separator(u"x"); },
        [](VellumarkCommand& c) { c.set_start_text(u"x"); },
        [](VellumarkCommand& c) { c.set_end_text(u"x"); },
        [](VellumarkCommand& c) { c.set_same_parts_for_folders(false); },
        [](VellumarkCommand& c) { c.set_no_start_end_text_if_one_item(true); },
        [](VellumarkCommand& c) { c.set_sort_order(Sort::Size); },
        [](VellumarkCommand& c) { c.set_add_files_from_folders(true); },
        [](VellumarkCommand& c) { c.set_limit_folder_depth(true); },
        [](VellumarkCommand& c) { c.set_max_folder_depth(9); },
        [](VellumarkCommand& c) { c.set_show(false, c.show_rule()); },
        [](VellumarkCommand& c) { c.set_show(true, ShowRule::MoreThanOneItem); },
        [](VellumarkCommand& c) { c.set_file_filter_enabled(true); },
        [](VellumarkCommand& c) { c.set_file_filter_preset_uuid(u"x"); },
        [](VellumarkCommand& c) {
            c.set_file_filter(ItemFilter({{"filterPattern", "x"}}));
        },
        [](VellumarkCommand& c) { c.set_folder_filter_enabled(true); },
        [](VellumarkCommand& c) {
            c.set_folder_filter(ItemFilter({{"filterPattern", "x"}}));
        },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        VellumarkCommand changed = original;
        EXPECT_TRUE(changed.equals(original));
        changes[i](changed);
        EXPECT_FALSE(changed.equals(original)) << i;
        VellumarkCommand target;
        target.assign_from(changed);
        target.set_name(changed.name());
        target.set_name1(changed.name1());
        EXPECT_TRUE(target.equals(changed)) << i;
    }
}

TEST(Command, TurningTheLimitOnRaisesTheDepth)
{
    VellumarkCommand command = make_command("{}");
    EXPECT_EQ(command.max_folder_depth(), 0);
    command.set_limit_folder_depth(true);
    EXPECT_EQ(command.max_folder_depth(), 1);
}

TEST(ShowRules, FollowTheSelectionAndTheFilters)
{
    const TempFolder folder;
    folder.write("file.txt");
    folder.make_folder("sub");
    folder.make_link("link", "file.txt");
    const auto shown = [&](const std::string& json, std::vector<std::string> names) {
        MVItemsSet set;
        for (const auto& name : names)
            set.add_path(folder.path(name));
        return make_command(json).is_shown_for(set);
    };
    const std::vector<std::pair<std::string, std::string>> selections{
        {"atLeastOneFile", "F FS L"},   {"atLeastOneFolder", "S FS"}, {"atLeastOneLink", "L"},
        {"atLeastOneItem", "F S FS L"}, {"exactlyOneFile", "F L"},    {"exactlyOneFolder", "S"},
        {"exactlyOneLink", "L"},        {"exactlyOneItem", "F S L"},  {"moreThanOneItem", "FS"}};
    for (const auto& [rule, expected] : selections) {
        std::string holding;
        for (const auto& [title, names] : std::vector<std::pair<std::string, std::vector<std::string>>>{
                 {"-", {}}, {"F", {"file.txt"}}, {"S", {"sub"}}, {"FS", {"file.txt", "sub"}}, {"L", {"link"}}})
            if (shown("{'showUsingDefaultRules':false,'showRule':'" + rule + "'}", names))
                holding += (holding.empty() ? "" : " ") + title;
        EXPECT_EQ(holding, expected) << rule;
    }
    EXPECT_TRUE(shown("{}", {"sub"}));
    EXPECT_FALSE(shown("{'fileParts':[{'item-type':'size','size-format':'auto'}]}", {"sub"}));
    EXPECT_FALSE(shown("{'folderParts':[]}", {"file.txt"}));
    EXPECT_FALSE(shown("{'addFilesFromFolders':true}", {"file.txt"}));
    const std::string jpg = "{'fileFilterEnabled':true,'fileFilter':{'filterPattern':'jpg'}";
    EXPECT_FALSE(shown(jpg + "}", {"file.txt"}));
    EXPECT_TRUE(shown(jpg + "}", {"file.txt", "sub"}));
    EXPECT_FALSE(
        shown(jpg + ",'folderFilterEnabled':true,'folderFilter':{'filterPattern':'x'}}", {"file.txt", "sub"}));
}

TEST(ChecksumComparison, FindsTheCopiedChecksum)
{
    const TempFolder folder;
    const MVItemsSet set(folder.write("file", "123456789"));
    const auto command = make_command("{'fileParts':[{'item-type':'checksum','checksum-type':'crc32'}]}");
    const auto compared = [&](const VellumarkCommand& c, std::u16string text,
                              std::u16string clipboard) -> std::string {
        const auto result = compare_checksum(c, set, text, [&] { return std::optional(clipboard); });
        return result ? to_utf8(result->clipboard_checksum) + (result->matches ? " = " : " # ") +
                            to_utf8(result->checksum_type_name)
                      : "none";
    };
    const std::vector<std::pair<std::u16string, std::string>> cases{{u"0xCBF43926", "CBF43926 = CRC32"},
                                                                    {u"file: 12345678, cbf43926", "12345678 # CRC32"},
                                                                    {u"cbf439261 gcbf43926", "none"},
                                                                    {u"\u00E9cbf43926\u00E9", "cbf43926 = CRC32"},
                                                                    {u"ghijklmn\tcbf43926\n", "cbf43926 = CRC32"},
                                                                    {u"cbf4392", "none"},
                                                                    {u"", "none"}};
    for (const auto& [clipboard, expected] : cases)
        EXPECT_EQ(compared(command, u"cbf43926", clipboard), expected) << to_utf8(clipboard);
    EXPECT_EQ(compared(command, u"(cbf4392)", u"cbf43926"), "none");
    EXPECT_EQ(compared(make_command("{}"), u"cbf43926", u"cbf43926"), "none");
    const auto selecting = [&](std::vector<std::u16string> paths) {
        const auto same = [] { return std::optional<std::u16string>(u"cbf43926"); };
        return compare_checksum(command, MVItemsSet(paths), u"cbf43926", same).has_value();
    };
    EXPECT_TRUE(selecting({folder.path("file")}));
    EXPECT_FALSE(selecting({folder.path("file"), folder.path("file")}));
    EXPECT_FALSE(selecting({folder.path()}));
    const auto no_clipboard = [] { return std::optional<std::u16string>(); };
    EXPECT_FALSE(compare_checksum(command, set, u"cbf43926", no_clipboard));
    int reads = 0;
    const auto counted = [&] { return std::optional(std::u16string(static_cast<std::size_t>(++reads), u'0')); };
    EXPECT_FALSE(compare_checksum(command, set, u"", counted));
    EXPECT_EQ(reads, 0);
}

}
