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

/// They differ from the names that the rows have for several items.
TEST(BuiltinCommandInfo, NamesForNamelessCommands)
{
    std::string names, listed;
    for (const CommandType type : all_types())
        names.append(default_command_name(type)).append(", ");
    EXPECT_EQ(names, "Unnamed, Multi Rename, Paste Filename, Paste Filename (No Ext.), Copy Filename and Delete, "
                     "Extract Folder, Delete Empty Folders, More Commands..., Invalid, ");
    EXPECT_EQ(full_command_name(CommandType::Vellumark), "Vellumark Stored Command");
    EXPECT_EQ(full_command_name(CommandType::ExtractFolder), "Extract Folder");
    EXPECT_EQ(default_command_name(static_cast<CommandType>(99)), "Invalid");
    for (const BuiltinCommandInfo& info : listed_builtin_commands())
        listed.append(info.name).append(", ");
    EXPECT_EQ(listed, "Multi Rename, Paste Filename, Paste Filename (No Ext.), Copy Filename and Delete, "
                      "More Commands..., ");
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
