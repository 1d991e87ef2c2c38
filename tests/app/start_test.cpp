#include "app_test.h"
#include "box_answer.h"
#include "support/becomes.h"
#include "support/visible_labels.h"

#include <QSettings>

namespace {

constexpr std::string_view menu_empty = R"({"menuCommands":[],"commandsLibrary":[],"extensionsPresets":[]})";

TEST_F(AppTest, SelectsTheInitialCommand)
{
    struct Case {
        std::string_view menu, library;
        std::string_view last, last_more; ///< no `last`: none was run
        int menu_row, library_row;        ///< of the last session
        std::string_view expected;
    };

    const Case cases[] = {
        {"A, B", "C, D", "", "", 1, 1, "menu[*A, B] library[C, *D]"},
        {"More, Extract, B", "C, D", "", "", 0, 7, "menu[More, Extract, *B] library[*C, D]"},
        {"More, Extract", "", "", "", 1, -3, "menu[*More, Extract] library[]"},
        {"A, B", "B, D", "B", "", 0, 1, "menu[A, *B] library[B, *D]"},
        {"A, B", "C, D", "D", "", 1, 0, "library[C, *D] menu[A, *B]"},
        {"A, B", "C, D", "D", "", 2, 0, "library[C, *D] menu[*A, B]"},
        {"A, B", "C, D", "E", "", 0, 1, "menu[A, B, *E'~] library[C, *D]"},
        {"A, B", "C, D", "B", R"(,"startText":"x")", 0, 1, "menu[A, B, *B'~] library[C, *D]"},
    };
    for (const Case& c : cases) {
        store(c.menu, c.library);
        folder.write(last_file, "[]");
        if (!c.last.empty())
            run_last(c.last, c.last_more);
        QSettings settings;
        settings.setValue("VKMenuCommandsSelectedIndex", c.menu_row);
        settings.setValue("VKLibraryCommandsSelectedIndex", c.library_row);
        // The initial command's list shows, whichever tab did.
        settings.setValue("VKActiveTab", c.library_row);
        open_again();
        EXPECT_EQ(state(), c.expected);
        EXPECT_EQ(editor->current, app->active_list().current_command()->type() == CommandType::Vellumark
                                       ? app->active_list().current_command()
                                       : nullptr);
    }
}

TEST_F(AppTest, StartsWithFilesThatCantBeRead)
{
    struct Case {
        std::string_view commands, last;
        std::string box, state;
    };

    const auto box_with = [](const std::string& reason) {
        return BoxAnswer::box("Failed to load stored commands\n" + reason, "OK");
    };
    const std::string missing = box_with("JSON value missing: menuCommands");
    const Case cases[] = {
        {R"({"menuCommands":[)", "",
         box_with("user\\Mirvanta\\Vellumark\\VKCmds.json: Invalid JSON (incomplete JSON)"), "menu[] library[]"},
        {"{}", "", missing, "menu[] library[]"},
        {"{}", R"({"commandType":"Vellumark","name":"Z","separator":""})", missing, "menu[] library[]"},
        {menu_empty, "{]", "", "menu[*A] library[]"},
        {menu_empty, R"({"commandType":"Vellumark"})", "", "menu[*A] library[]"},
    };
    ship("A");
    for (const Case& c : cases) {
        folder.write(user_file, c.commands);
        folder.write(last_file, c.last.empty() ? "[]" : c.last);
        const BoxAnswer box({"OK"});
        open_again();
        EXPECT_EQ(box.seen(), "") << "the window comes first";
        EXPECT_TRUE(becomes([&] { return c.box.empty() || !box.seen().empty(); }));
        EXPECT_EQ(shortened(box.seen()), c.box);
        EXPECT_EQ(state(), c.state);
        EXPECT_EQ(content(user_file), c.commands);
    }
}

TEST_F(AppTest, KeepsTheFileThatCouldntBeRead)
{
    ship("A, More");
    folder.write(user_file, "typo");
    open();
    const BoxAnswer box({"OK"});
    EXPECT_TRUE(becomes([&] { return !box.seen().empty(); }));
    app->reset_stored_commands();
    EXPECT_TRUE(app->save_commands_list() && app->save_commands_list());
    EXPECT_FALSE(exists(std::string(user_file) + ".broken2"));
    EXPECT_EQ(content(std::string(user_file) + ".broken"), "typo");
}

TEST_F(AppTest, TellsWhyNoPageShowsAndOffersTheDefaults)
{
    const auto shown = [this] {
        std::string text = visible_labels(*app);
        for (const char* name : {"Duplicate", "Delete", "Reset to default commands list"})
            text += button(name) && button(name)->isEnabled() ? std::string(", ") + name : "";
        return text;
    };
    ship("");
    open();
    EXPECT_EQ(shown(), "Context menu commands list is empty, Reset to default commands list");
    show_tab(1);
    EXPECT_EQ(shown(), "Commands library is empty");
    show_tab(0);
    ship("A, More");
    press("Reset to default commands list");
    EXPECT_EQ(state(), "menu[*A', More'] library[] save");
    EXPECT_EQ(shown(), ", Duplicate, Delete");
    app->menu_list().select(1);
    EXPECT_EQ(shown(), "Select a command, Delete");
    app->undo_stack().setIndex(0);
    EXPECT_EQ(state(), "menu[] library[]");

    folder.write(shipped_file, "no JSON");
    const BoxAnswer box({"OK"});
    press("Reset to default commands list");
    EXPECT_EQ(shortened(box.seen()), BoxAnswer::box("Failed to read built-in stored commands\n"
                                                    "app\\VKCmds.json: Invalid JSON (syntax error)",
                                                    "OK"));
    EXPECT_EQ(state(), "menu[] library[]");
    app.reset();
    open(false);
}

}
