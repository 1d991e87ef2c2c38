#include "app/end_requests.h"
#include "app/exit_deadline.h"
#include "app_test.h"
#include "box_answer.h"
#include "engine/items/selection_protocol.h"
#include "platform/message_pipe.h"
#include "support/becomes.h"
#include "ui/lists/commands_list_model.h"
#include "ui/lists/commands_table_view.h"

#include <QLineEdit>
#include <QSettings>
#include <QSplitter>
#include <QTest>
#include <QTimer>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <thread>

namespace {

const std::string no_configure_box = BoxAnswer::box(
    "<p>The stored commands list does not contain the <i>More Commands</i> command.</p><p>Without this command, you "
    "can only access the configuration window by holding CTRL while selecting any Vellumark command in Windows File "
    "Explorer.</p><p>To restore the <i>More Commands</i> command:<ol><li>Click <b>Cancel</b> to close this message"
    "<li>Click the <b>New</b> button to open the new command dialog<li>Click the <b>Add 'More Commands...' Command"
    "</b> button</p><p>Press <b>Save</b> if you still want to save this list without the <i>More Commands</i> "
    "command.</p>",
    "Save, Cancel");
const std::string menu_empty_box =
    BoxAnswer::box("<p>Cannot save empty context menu commands list.</p><p>Press the <b>Reset to "
                   "default commands list</b> button to restore the default commands list.</p>",
                   "OK");
const std::string write_failed_box =
    BoxAnswer::box("Failed to save stored commands\nFailed to write commands to temporary file.", "OK");
const std::string changes_box =
    BoxAnswer::box("<p>You have made changes to the stored commands.</p><p>Press <b>Save</b> to save "
                   "these changes, or <b>Don't Save</b> to close this dialog without saving the "
                   "changes.</p>",
                   "Save, Don't Save, Cancel");

TEST_F(AppTest, SavesWhatMayBeSaved)
{
    struct Case {
        std::string_view menu;
        std::initializer_list<int> deleted;
        const char* answer;
        bool can_write;
        std::string_view boxes;
        std::string_view saved; ///< the menu's names; empty: nothing was saved
    };

    const Case cases[] = {
        {"A, B, More", {1}, "", true, "", "menu[A, More] library[L hidden] presets[]"},
        {"A, B, More", {2}, "Cancel", true, no_configure_box, ""},
        {"A, B, More", {2}, "", true, no_configure_box, ""},
        {"A, B, More", {2}, "Save", true, no_configure_box, "menu[A, B] library[L hidden] presets[]"},
        {"A, More", {0, 1}, "OK", true, menu_empty_box, ""},
        {"A, B, More", {1}, "OK", false, write_failed_box, ""},
    };
    for (const Case& c : cases) {
        store(c.menu, "L");
        open_again();
        select_rows(app->menu_list(), c.deleted);
        press("Delete");
        const std::string before = content(user_file);
        const std::string obstacle = folder.host(std::string(user_file) + "+");
        if (!c.can_write)
            std::filesystem::create_directory(obstacle);
        const BoxAnswer box({c.answer});
        press("Save");
        EXPECT_EQ(box.seen(), c.boxes);
        EXPECT_EQ(button("Save") == nullptr, !c.saved.empty());
        if (c.saved.empty())
            EXPECT_EQ(content(user_file), before);
        else
            EXPECT_EQ(flat(commands_file::load()), c.saved);
        std::filesystem::remove(obstacle);
    }
}

TEST_F(AppTest, LeavesAsTheUserAnswers)
{
    struct Case {
        const char* button;
        bool edited;
        const char* answer;
        bool may_close;
        std::string_view boxes, runs;
        bool closes, saves;
    };

    const Case cases[] = {
        {"OK", false, "", true, "", "run ", true, false},
        {"OK", false, "", false, "", "run ", false, false},
        {"OK", true, "Cancel", true, changes_box, "", false, false},
        {"OK", true, "", true, changes_box, "", false, false},
        {"OK", true, "Don't Save", true, changes_box, "run ", true, false},
        {"OK", true, "Save", true, changes_box, "run ", true, true},
        {"OK", true, "Save", false, changes_box, "run ", false, true},
        {"Cancel", true, "", true, "", "", true, false},
    };
    for (const Case& c : cases) {
        store("A, More");
        open_again();
        if (c.edited)
            editor->change_separator(u"-");
        editor->calls.clear();
        editor->may_close = c.may_close;
        const std::string before = content(user_file);
        const BoxAnswer box({c.answer});
        press(c.button);
        EXPECT_EQ(box.seen(), c.boxes);
        EXPECT_EQ(editor->calls, c.runs);
        EXPECT_EQ(app->isVisible(), !c.closes);
        EXPECT_EQ(content(user_file) != before, c.saves);
        EXPECT_EQ(button("Save") != nullptr, c.edited && !c.saves && !c.closes);
    }
}

TEST_F(AppTest, ASelectionTakesBackTheOkThatStillAsks)
{
    store("A, More");
    open();
    editor->change_separator(u"-");
    QTimer::singleShot(0, app.get(), [&] { app->on_context_menu_selected(-1, {path_of("a.txt")}); });
    const BoxAnswer box({"Don't Save"});
    press("OK");
    EXPECT_TRUE(app->isVisible());
    EXPECT_EQ(editor->calls.find("run"), std::string::npos) << editor->calls;
}

TEST_F(AppTest, AnOpenEditIsFinishedFirst)
{
    const auto type = [this](const QString& text) {
        // An edit that was finished leaves its field behind until then.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto views = app->findChildren<CommandsTableView*>();
        auto* view = *std::ranges::find(views, &app->menu_list().model(), &CommandsTableView::model);
        view->edit(app->menu_list().model().index(0, CommandsListModel::NameColumn));
        QTest::keyClicks(view->findChild<QLineEdit*>(), text);
    };
    store("A, More");
    open();
    type("B");
    app->save_commands_list();
    EXPECT_EQ(flat(commands_file::load()), "menu[B, More] library[] presets[]");
    type("C");
    app->close_with_accept();
    EXPECT_EQ(state(), "menu[*C', More] library[]");
    app->show();
    type("D");
    const BoxAnswer box({"Save"});
    press("OK");
    EXPECT_EQ(flat(commands_file::load()), "menu[D, More] library[] presets[]");
}

TEST_F(AppTest, StaysWhenTheSaveOnLeavingIsRefused)
{
    store("A, More");
    open();
    select_rows(app->menu_list(), {1});
    press("Delete");
    // One answer for both boxes: the second one refuses a menu that leads nowhere.
    const BoxAnswer box({"Save", "Cancel"});
    press("OK");
    EXPECT_EQ(box.seen(), changes_box + no_configure_box);
    EXPECT_TRUE(app->isVisible());
}

TEST_F(AppTest, KeepsTheWindowsStateHoweverItIsLeft)
{
    store("A, B, More", "L, M");
    const std::function<void()> leaves[] = {[this] { press("OK"); },
                                            [this] { press("Cancel"); },
                                            [this] { QTest::keyClick(app.get(), Qt::Key_Escape); },
                                            [this] { app->close(); },
                                            [this] { app->close_with_accept(); },
                                            [this] {
                                                follow_end_requests(*app);
                                                raise(SIGTERM);
                                                EXPECT_TRUE(becomes([this] { return !app->isVisible(); }));
                                                alarm(0);
                                            }};
    for (const auto& leave : leaves) {
        QSettings().clear();
        open_again();
        EXPECT_EQ(app->minimumSize(), QSize(600, 600));
        app->resize(811, 702);
        auto* splitter = app->findChild<QSplitter*>();
        splitter->setSizes({350, 400});
        const QList<int> sizes = splitter->sizes();
        app->menu_list().select_without_undo(1);
        show_tab(1);
        app->library_list().select_without_undo(1);
        leave();
        EXPECT_FALSE(app->isVisible());
        const QSettings settings;
        EXPECT_EQ(settings.value("VKMenuCommandsSelectedIndex"), 1);
        EXPECT_EQ(settings.value("VKLibraryCommandsSelectedIndex"), 1);
        EXPECT_EQ(settings.value("VKActiveTab"), 1);
        open_again();
        EXPECT_EQ(app->size(), QSize(811, 702));
        EXPECT_EQ(app->findChild<QSplitter*>()->sizes(), sizes);
        EXPECT_EQ(static_cast<const TestPage*>(editor->main_widget())->restored, 7);
    }
}

TEST_F(AppTest, TakesNoSelectionOnceItIsLeft)
{
    store("A, More");
    open();
    const auto send = [] {
        return platform::send_message(selection_protocol::pipe_name, "{}", std::chrono::seconds(10));
    };
    EXPECT_TRUE(becomes([&] { return !send(); }));
    press("Cancel");
    EXPECT_TRUE(send());
}

TEST(EndProcess, ComesThoughTheRestHangs)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto hang = [] {
        end_process_within(std::chrono::milliseconds(10), 7);
        std::this_thread::sleep_for(std::chrono::hours(1));
    };
    EXPECT_EXIT(hang(), testing::ExitedWithCode(7), "");
}

}
