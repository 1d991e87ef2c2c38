#include "engine/commands/vellumark_command.h"
#include "engine/parts/text_part.h"
#include "engine/text/utf.h"
#include "store/command_factory.h"
#include "store/mv_command_builtin.h"

#include <gtest/gtest.h>

namespace {

const auto text_part = [](std::u16string text) {
    auto part = std::make_shared<ItemPartText>();
    part->set_text(std::move(text));
    return part;
};

TEST(CommandBase, NameForOneItem)
{
    const std::vector<std::pair<std::u16string, std::u16string>> rows{
        {u"Copy Names", u"Copy Name"},
        {u"Copy Paths and Names", u"Copy Path and Name"},
        {u"Folders, Files", u"Folder, File"},
        {u"Copy Class Names", u"Copy Class Name"},
        {u"COPY FILENAMES", u"COPY FILENAME"},
        {u"SubfolderS (2)", u"Subfolder (2)"},
        {u"Names2Paths_", u"Name2Path_"},
        {u"Namesake Pathss ames", u"Namesake Pathss ames"},
        {u"Filesé Namesß", u"Filesé Namesß"},
        {u"s", u"s"},
        {u"", u""},
    };
    for (const auto& [name, one] : rows) {
        MVCommandBuiltin command(CommandType::Configure, name);
        EXPECT_EQ(command.display_name(true), one);
        EXPECT_EQ(command.display_name(false), name);
        command.set_name1(u"Own Names");
        EXPECT_EQ(command.display_name(true), u"Own Names");
        EXPECT_EQ(command.display_name(false), name);
    }
}

TEST(CommandBase, CommitAndRevert)
{
    VellumarkCommand command(u"A");
    EXPECT_TRUE(command.has_uncommitted_changes());
    EXPECT_FALSE(command.has_discardable_changes());
    EXPECT_EQ(command.committed_copy(), nullptr);
    command.revert();

    command.file_parts()->append(text_part(u"x"));
    command.commit();
    EXPECT_FALSE(command.has_uncommitted_changes());
    command.set_show_in_menu(false);
    EXPECT_FALSE(command.has_uncommitted_changes());

    command.set_name(u"B");
    command.set_name1(u"B1");
    EXPECT_TRUE(command.has_uncommitted_changes());
    EXPECT_FALSE(command.has_discardable_changes());
    command.file_parts()->append(text_part(u"y"));
    EXPECT_TRUE(command.has_discardable_changes());

    const auto copy = command.committed_copy();
    EXPECT_EQ(copy->name(), u"A");
    EXPECT_FALSE(copy->has_uncommitted_changes());
    copy->set_name(u"C");
    EXPECT_TRUE(copy->has_uncommitted_changes());
    EXPECT_EQ(command.committed_copy()->name(), u"A");

    command.revert();
    EXPECT_EQ(command.name(), u"B");
    EXPECT_EQ(command.file_parts()->size(), 1u);
    EXPECT_FALSE(command.has_discardable_changes());
    EXPECT_TRUE(command.has_uncommitted_changes());
    command.set_name(u"A");
    command.set_name1(u"");
    EXPECT_FALSE(command.has_uncommitted_changes());
}

TEST(CommandBase, Clone)
{
    VellumarkCommand command(u"A");
    command.set_name1(u"A1");
    command.set_show_in_menu(false);
    command.set_from_previous_session(true);
    command.file_parts()->append(text_part(u"x"));
    command.commit();
    MVCommandBuiltin builtin(CommandType::ExtractFolder, u"B");
    builtin.set_from_previous_session(true);
    builtin.commit();
    for (MVCommandBase* original : {static_cast<MVCommandBase*>(&command), static_cast<MVCommandBase*>(&builtin)}) {
        const auto clone = original->clone();
        EXPECT_TRUE(clone->equals(*original));
        EXPECT_EQ(clone->show_in_menu(), original->show_in_menu());
        EXPECT_FALSE(clone->from_previous_session());
        EXPECT_FALSE(clone->has_uncommitted_changes());
        clone->set_name1(u"other");
        EXPECT_FALSE(clone->equals(*original));
    }
    dynamic_cast<VellumarkCommand&>(*command.clone()).file_parts()->append(text_part(u"y"));
    EXPECT_EQ(command.file_parts()->size(), 1u);
}

TEST(CommandBase, ClassAndTypeBelongToTheContents)
{
    MVCommandBuiltin builtin(CommandType::Configure, u"A");
    MVCommandBuiltin other(CommandType::MultiRename, u"A");
    const VellumarkCommand command(u"A");
    EXPECT_FALSE(builtin.equals(other));
    EXPECT_FALSE(builtin.equals(command));
    EXPECT_FALSE(command.equals(builtin));
    builtin.assign_from(command);
    EXPECT_EQ(builtin.type(), CommandType::Configure);
    builtin.assign_from(other);
    EXPECT_TRUE(builtin.equals(other));
    other.set_name(u"B");
    builtin.assign_from(other);
    EXPECT_EQ(builtin.name(), u"A");
}

TEST(CommandFactory, MakesEveryType)
{
    for (const auto& row : command_types) {
        const boost::json::object json{{"commandType", row.json},
                                       {"name", "A"},
                                       {"name1", "B"},
                                       {"separator", ""},
                                       {"fileParts", boost::json::array()}};
        const auto command = command_from_json(json);
        ASSERT_NE(command, nullptr) << row.json;
        EXPECT_EQ(command->type(), row.value);
        EXPECT_EQ(dynamic_cast<VellumarkCommand*>(command.get()) != nullptr, row.value == CommandType::Vellumark);
        EXPECT_EQ(command->to_json().at("commandType").as_string(), row.json);
    }
    const MVCommandBuiltin invalid(CommandType::Invalid, u"A");
    EXPECT_EQ(serialize(invalid.to_json()), R"({"name":"A"})");
    EXPECT_THROW(MVCommandBuiltin(CommandType::Invalid, invalid.to_json()), std::runtime_error);
}

}
