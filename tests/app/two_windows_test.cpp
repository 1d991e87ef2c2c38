#include "app_test.h"
#include "box_answer.h"
#include "engine/commands/vellumark_command.h"
#include "support/becomes.h"
#include "ui/dialogs/busy_dlg.h"
#include "ui/lists/commands_list_model.h"

#include <QApplication>
#include <QSettings>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <future>

namespace {

const std::string changed_box = BoxAnswer::box(
    "Stored commands were changed by another program since they were loaded.", "Merge, Overwrite, Cancel");

/// Cancels the dialogs that wait for a file.
class BusyCancel
{
public:
    BusyCancel()
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [] {
            if (auto* dialog = qobject_cast<BusyDlg*>(QApplication::activeModalWidget()))
                dialog->reject();
        });
        timer_.start(0);
    }

private:
    QTimer timer_;
};

TEST_F(AppTest, ASaveAsksAboutTheChangesOfOthers)
{
    struct Case {
        std::string_view theirs; ///< empty: they have deleted the file
        const char* answer;
        std::string boxes;
        std::string_view saved; ///< empty: nothing was saved
        std::string_view state;
        bool is_kept;
    };

    const std::string unreadable =
        BoxAnswer::box("Failed to load stored commands\nuser\\Mirvanta\\Vellumark\\VKCmds.json: Invalid JSON "
                       "(incomplete JSON)",
                       "OK");
    const Case cases[] = {
        {"B, A, More", "Merge", changed_box, "menu[B, A, More] library[] presets[]", "menu[B, *A, More] library[]",
         false},
        {"B, A, More", "Overwrite", changed_box, "menu[A, More] library[] presets[]", "menu[*A, More] library[]",
         true},
        {"B, A, More", "Cancel", changed_box, "", "menu[*A', More] library[] save", false},
        {"B, A, More", "", changed_box, "", "menu[*A', More] library[] save", false},
        {"broken", "Merge", changed_box + unreadable, "", "menu[*A', More] library[] save", false},
        {"", "", "", "menu[A, More] library[] presets[]", "menu[*A, More] library[]", false},
    };
    const std::string kept = std::string(user_file) + ".broken";
    for (const Case& c : cases) {
        store("A, More");
        open_again();
        editor->change_separator(u"-");
        if (c.theirs == "broken")
            folder.write(user_file, "{");
        else
            store(c.theirs);
        if (c.theirs.empty())
            std::filesystem::remove(folder.host(user_file));
        const std::string theirs = content(user_file);
        const BoxAnswer box({c.answer, "OK"});
        EXPECT_EQ(app->save_commands_list(), !c.saved.empty());
        EXPECT_EQ(shortened(box.seen().substr(0, changed_box.size())) +
                      shortened(box.seen().substr(std::min(changed_box.size(), box.seen().size()))),
                  c.boxes);
        EXPECT_EQ(state(), c.state);
        if (c.saved.empty())
            EXPECT_EQ(content(user_file), theirs);
        else
            EXPECT_EQ(flat(commands_file::load()), c.saved);
        EXPECT_EQ(exists(kept) ? content(kept) : "", c.is_kept ? theirs : "");
        std::filesystem::remove(folder.host(kept));
    }
}

TEST_F(AppTest, OneSaveAsksOnceAboutTheMissingCommand)
{
    store("A");
    open();
    editor->change_separator(u"-");
    store("A, B");
    const BoxAnswer box({"Save", "Merge", "Save"});
    EXPECT_TRUE(app->save_commands_list());
    EXPECT_EQ(std::ranges::count(box.seen(), '\n'), 2) << box.seen();
}

TEST_F(AppTest, TakesOverWhatOthersSaveAsLongAsItHasNoChanges)
{
    const auto shows = [this](std::string_view expected) { return becomes([&] { return state() == expected; }); };
    store("A, B, More", "L");
    run_last("Z");
    open();
    app->menu_list().select(1);
    const auto current = app->menu_list().current_command();
    store("B, C, More", "M");
    EXPECT_TRUE(shows("menu[*B, C, More, Z'~] library[*M]")) << state();
    EXPECT_EQ(app->menu_list().current_command(), current);
    // By a rename, as the program itself saves, and again.
    for (const std::string_view menu : {"C, More", "More, D"}) {
        store(menu);
        std::filesystem::copy(folder.host(user_file), folder.host("copy"));
        store("half");
        std::filesystem::rename(folder.host("copy"), folder.host(user_file));
        EXPECT_TRUE(shows(menu == "C, More" ? "menu[*C, More, Z'~] library[]" : "menu[*More, D, Z'~] library[]"))
            << state();
    }
    app->undo_stack().setIndex(0);
    EXPECT_EQ(state(), "menu[A, B, More, *Z'~] library[*L] save") << "what was there can be had again";
    store("E, More");
    const BoxAnswer box({"Merge"});
    EXPECT_TRUE(app->save_commands_list());
    EXPECT_EQ(flat(commands_file::load()), "menu[E, A, B, More, Z] library[L hidden] presets[]");
}

TEST_F(AppTest, WhatTheFileSaysOfNothingStaysWhenOthersSave)
{
    const auto shows = [this](std::string_view expected) { return becomes([&] { return state() == expected; }); };
    store("A, More");
    run_last("Z");
    open();
    const QSignalSpy painted(&app->menu_list().model(), &QAbstractItemModel::dataChanged);
    store("A, More, Z");
    EXPECT_TRUE(shows("menu[A, More, *Z] library[]")) << state();
    EXPECT_FALSE(painted.isEmpty() || app->undo_stack().canUndo());
    // Nobody asks for the depth: there is no limit.
    const auto command = std::dynamic_pointer_cast<VellumarkCommand>(app->menu_list().command_at(0));
    command->set_max_folder_depth(5);
    EXPECT_TRUE(app->save_commands_list());
    store("B, A, More, Z");
    EXPECT_TRUE(shows("menu[B, A, More, *Z] library[]")) << state();
    EXPECT_EQ(app->menu_list().command_at(1), command);
}

TEST_F(AppTest, ASaveCountsForWhatItWroteAlone)
{
    store("A, More");
    std::promise<void> disk_is_back;
    files.save = [back = disk_is_back.get_future().share()](const CommandsSaving& saving) {
        back.wait();
        return commands_saving::write(saving);
    };
    open();
    editor->change_separator(u"-");
    QTimer::singleShot(0, app.get(), [&] {
        EXPECT_FALSE(app->save_commands_list()) << "while the first is on its way";
        editor->change_separator(u"+");
        disk_is_back.set_value();
    });
    EXPECT_TRUE(app->save_commands_list());
    EXPECT_EQ(state(), "menu[*A', More] library[] save");
    app->menu_list().discard(0);
    EXPECT_EQ(state() + to_utf8(editor->current->separator()), "menu[*A, More] library[]-");
}

TEST_F(AppTest, ADiskThatHangsHoldsUpNothing)
{
    store("A, B, More");
    run_last("B");
    std::promise<void> disk_is_back;
    const auto back = disk_is_back.get_future().share();
    files.patience_at_start = {};
    files.load = [back] {
        back.wait();
        return commands_file::load_user_file();
    };
    std::promise<bool> saved;
    files.save = [back, &saved](const CommandsSaving& saving) {
        back.wait();
        saved.set_value(commands_saving::write(saving));
        return false;
    };
    QSettings().setValue("VKMenuCommandsSelectedIndex", 1);
    open();
    EXPECT_EQ(state(), "menu[] library[]");
    EXPECT_TRUE(becomes([] { return qobject_cast<BusyDlg*>(QApplication::activeModalWidget()); }));
    {
        const BusyCancel cancel;
        EXPECT_TRUE(becomes([] { return !QApplication::activeModalWidget(); }));
    }
    app->keep_state();
    EXPECT_EQ(QSettings().value("VKMenuCommandsSelectedIndex"), 1) << "that of a list that nobody has seen";
    app->new_command_btn_pressed();
    const std::string before = content(user_file);
    {
        const BusyCancel cancel;
        const BoxAnswer box({"Save", "OK"});
        EXPECT_FALSE(app->save_commands_list());
        EXPECT_NE(box.seen().find("Failed to save stored commands\nSaving was cancelled."), std::string::npos);
    }
    EXPECT_EQ(state(), "menu[*'] library[] save");
    app->undo_stack().undo();
    disk_is_back.set_value();
    EXPECT_TRUE(becomes([&] { return state() == "menu[*A, B, More] library[]"; })) << state();
    EXPECT_FALSE(saved.get_future().get()) << "nobody wanted that save any more";
    EXPECT_EQ(content(user_file), before);
}

TEST_F(AppTest, LateCommandsComeWithTheirSelection)
{
    store("A, B, C, More", "L");
    run_last("B");
    files.patience_at_start = {};
    for (const int row : {-1, 2}) {
        std::promise<void> disk_is_back;
        files.load = [back = disk_is_back.get_future().share()] {
            back.wait();
            return commands_file::load_user_file();
        };
        open_again();
        app->on_context_menu_selected(row, {});
        EXPECT_TRUE(becomes([&] { return !app->is_selection_coming(); }));
        disk_is_back.set_value();
        EXPECT_TRUE(becomes([&] { return !app->menu_list().is_empty(); }));
        EXPECT_EQ(state(), row < 0 ? "menu[A, *B, C, More] library[*L]" : "menu[A, B, *C, More] library[*L]");
        EXPECT_TRUE(becomes([] { return !QApplication::activeModalWidget(); }));
    }
}

}
