#include "app_test.h"
#include "engine/commands/vellumark_command.h"
#include "support/becomes.h"
#include "ui/presets/filter_presets_dialog.h"

#include <QLineEdit>
#include <QTest>

namespace {

/// A window with the presets "One" (a;b) and "Two" (c), which the commands A and B follow, A with an old list.
class PresetsTest : public AppTest
{
protected:
    PresetsTest() { store_presets(preset_json("1", "One", "a;b") + "," + preset_json("2", "Two", "c")); }

    void store_presets(const std::string& presets) const
    {
        const auto follower = [](const char* name, const char* uuid) {
            return command_json(name,
                                std::string(R"(,"fileFilterEnabled":true,"fileFilter":{"filterPattern":"old",)") +
                                    R"("fileFilterPresetUuid":")" + uuid + R"("})");
        };
        folder.write(user_file, R"({"menuCommands":[)" + follower("A", "1") + "," +
                                    R"({"commandType":"Configure","name":"More"}],"commandsLibrary":[)" +
                                    follower("B", "2") + R"(],"extensionsPresets":[)" + presets + "]}");
    }

    /// The lists, and what the commands' filters go by.
    std::string filters() const
    {
        const auto filter = [](const std::shared_ptr<MVCommandBase>& base) {
            const auto& command = dynamic_cast<const VellumarkCommand&>(*base);
            return " " + to_utf8(command.file_filter_preset_uuid() + u":" + command.file_filter().filter_pattern());
        };
        return state() + filter(app->menu_list().command_at(0)) + filter(app->library_list().command_at(0));
    }

    FilterPresetsDialog& dialog() const { return *app->findChild<FilterPresetsDialog*>(); }

    void edit(int place, const QString& text) const { dialog().findChildren<QLineEdit*>()[place]->setText(text); }

    void accept() const
    {
        dialog().accept();
        EXPECT_TRUE(becomes([&] { return !app->findChild<FilterPresetsDialog*>(); }));
    }
};

TEST_F(PresetsTest, CommandsFollowThemByStepsOfUndo)
{
    open();
    const std::string loaded = "menu[*A, More] library[*B] 1:a;b 2:c";
    EXPECT_EQ(filters(), loaded) << "up to date, and nothing to save";
    app->manage_presets();
    app->manage_presets();
    EXPECT_EQ(app->findChildren<FilterPresetsDialog*>().size(), 1);
    accept();
    EXPECT_EQ(app->undo_stack().count(), 0) << "nothing was changed";

    app->manage_presets();
    edit(0, "Renamed");
    edit(1, "X; y");
    for (auto* button : dialog().findChildren<QPushButton*>())
        if (button->accessibleName() == "Delete preset Two")
            button->click();
    accept();
    const std::string edited = "menu[*A', More] library[*B'] save 1:x;y :c";
    EXPECT_EQ(filters(), edited);
    EXPECT_EQ(app->undo_stack().undoText(), "Change Filter Presets");
    app->undo_stack().undo();
    EXPECT_EQ(filters(), loaded);
    app->undo_stack().redo();
    EXPECT_TRUE(app->save_commands_list());
    EXPECT_EQ(flat(commands_file::load()), "menu[A, More] library[B hidden] presets[Renamed=x;y]");
    app->undo_stack().undo();
    EXPECT_EQ(filters(), "menu[*A', More] library[*B'] save 1:a;b 2:c");
    open_again();
    EXPECT_EQ(filters(), "menu[*A, More] library[*B] 1:x;y :c");
}

TEST_F(PresetsTest, WhatOthersChangeIsPartOfTheHistory)
{
    open();
    app->library_list().select_without_undo(0);
    show_tab(1);
    press("Delete");
    EXPECT_TRUE(app->save_commands_list());
    store_presets(preset_json("1", "One", "z"));
    EXPECT_TRUE(becomes([&] { return app->undo_stack().count() == 2; }));
    EXPECT_TRUE(filters().ends_with("1:z :old")) << filters();
    app->undo_stack().undo();
    app->undo_stack().undo();
    EXPECT_TRUE(filters().ends_with("1:a;b 2:c")) << filters();
    app->undo_stack().setIndex(2);
    EXPECT_TRUE(filters().ends_with("1:z :old")) << filters();
}

TEST_F(PresetsTest, NeitherSideIsLostWhileTheyAreEdited)
{
    open();
    app->manage_presets();
    edit(0, "Mine");
    Presets::List theirs = app->presets().working();
    theirs.pop_back();
    theirs.emplace_back().name = u"Theirs";
    app->presets().set_working(theirs);
    accept();
    std::u16string names;
    for (const ExtensionsPreset& one : app->presets().working())
        names += one.name + u" ";
    EXPECT_EQ(names, u"Mine Theirs ");
}

}
