#include "store/builtin_command_info.h"

#include "engine/items/mv_items_set.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace {

std::vector<CommandType> all_types()
{
    std::vector<CommandType> types;
    for (std::uint32_t value = 0; value <= 8; ++value)
        types.push_back(static_cast<CommandType>(value));
    return types;
}

TEST(BuiltinCommandInfo, ListedRows)
{
    std::string listed;
    for (const BuiltinCommandInfo& info : listed_builtin_commands())
        listed.append(info.name).append("\n");
    EXPECT_EQ(listed, "Multi Rename\nPaste Filename\nPaste Filename (No Ext.)\nCopy Filename and Delete\n"
                      "More Commands...\n");
}

TEST(BuiltinCommandInfo, RowOfEachType)
{
    for (const CommandType type : all_types())
        EXPECT_EQ(builtin_command_info(type).type, type);
    EXPECT_EQ(builtin_command_info(static_cast<CommandType>(99)).description, "Error: invalid command type.");
}

TEST(BuiltinCommandInfo, NamesForNamelessCommands)
{
    EXPECT_EQ(default_command_name(CommandType::Vellumark), "Unnamed");
    EXPECT_EQ(full_command_name(CommandType::Vellumark), "Vellumark Stored Command");
    const std::vector<std::string_view> names{
        "Multi Rename",   "Paste Filename",       "Paste Filename (No Ext.)", "Copy Filename and Delete",
        "Extract Folder", "Delete Empty Folders", "More Commands...",
    };
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(default_command_name(static_cast<CommandType>(i + 1)), names[i]);
        EXPECT_EQ(full_command_name(static_cast<CommandType>(i + 1)), names[i]);
    }
}

TEST(BuiltinCommandInfo, ShowRules)
{
    const TempFolder folder;
    folder.make_folder("dir");
    folder.make_link("to dir", "dir");
    folder.make_link("dangling", "gone");
    folder.write("a");
    folder.write("b");

    struct Row {
        std::vector<std::string_view> selection;
        std::string shown; ///< a type's number where it shows
    };

    const std::vector<Row> rows{
        {{}, "078"},          {{"a"}, "023478"},       {{"dangling"}, "023478"}, {{"dir"}, "0235678"},
        {{"a", "b"}, "0178"}, {{"to dir"}, "0235678"}, {{"a", "dir"}, "015678"}, {{"dir", "dir"}, "015678"},
    };
    for (const Row& row : rows) {
        MVItemsSet selection;
        for (const std::string_view name : row.selection)
            selection.add_path(folder.path(name));
        std::string shown;
        for (const CommandType type : all_types())
            if (builtin_show_test(type, selection))
                shown += std::to_string(static_cast<std::uint32_t>(type));
        EXPECT_EQ(shown, row.shown) << testing::PrintToString(row.selection);
    }
    EXPECT_EQ(builtin_command_info(CommandType::Configure).show_rule_text(), "");
    EXPECT_EQ(builtin_command_info(CommandType::ExtractFolder).show_rule_text(),
              "Only shown if a folder is selected.");
    EXPECT_EQ(builtin_command_info(CommandType::MultiRename).show_rule_text(),
              "Only shown if more than one file is selected.");
}

}
