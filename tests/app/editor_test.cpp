#include "app/editors.h"
#include "app_test.h"
#include "box_answer.h"
#include "debug_log.h"
#include "store/last_command.h"
#include "support/becomes.h"
#include "support/fake_clipboard.h"
#include "support/visible_labels.h"
#include "ui/editor/command_main_widget_base.h"
#include "ui/editor/vellumark_controller.h"
#include "ui/preview/wait_for_text_dlg.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

constexpr std::string_view sums = R"({"menuCommands":[{"commandType":"Vellumark","name":"Sums","separator":"",
    "fileParts":[{"item-type":"checksum","checksum-type":"crc32"}]},
    {"commandType":"Vellumark","name":"Names","separator":",","fileParts":[{"item-type":"name","name-type":"full-name"}]},
    {"commandType":"CopyFilenameAndDelete","name":"More"}],"commandsLibrary":[]})";

/// The window with the program's own editors and a clipboard in memory.
class EditorTest : public AppTest
{
protected:
    void open_with(const QStringList& paths)
    {
        app.reset();
        folder.write(user_file, sums);
        app = std::make_unique<MirvantaApp>(editors_with(clipboard));
        app->show();
        app->on_context_menu_selected(-1, paths);
        EXPECT_TRUE(becomes([&] { return app->selected_items()->items().size() == std::size_t(paths.size()); }));
    }

    QPlainTextEdit& preview() const { return *app->findChild<QPlainTextEdit*>(); }

    bool shows(const QString& text) const
    {
        return becomes([&] { return preview().isVisible() && preview().toPlainText() == text; });
    }

    VellumarkController& editor() const { return dynamic_cast<VellumarkController&>(*app->current_editor()); }

    WaitForTextDlg* open_wait_dialog() const
    {
        press("OK");
        auto* dialog = app->findChild<WaitForTextDlg*>();
        EXPECT_TRUE(dialog && dialog->isVisible());
        return dialog;
    }

    FakeClipboard clipboard;
};

}

TEST_F(EditorTest, ShowsTheTextAndCopiesIt)
{
    open_with({path_of("a.txt", "123456789"), path_of("b.txt")});
    EXPECT_TRUE(shows("cbf4392600000000"));
    app->menu_list().select(1);
    EXPECT_TRUE(shows("a.txt,b.txt"));
    press("OK");
    EXPECT_FALSE(app->isVisible());
    EXPECT_EQ(clipboard.text, u"a.txt,b.txt");
    EXPECT_EQ(clipboard.calls, "oesc");
    ASSERT_TRUE(read_last_command());
    EXPECT_EQ(read_last_command()->name(), u"Names");
}

TEST_F(EditorTest, ClosesThoughTheCommandCantBeKept)
{
    open_with({path_of("a.txt")});
    EXPECT_TRUE(shows("00000000"));
    const ScopedVariable nowhere("XDG_CONFIG_HOME", folder.host("a.txt"));
    const DebugLog log;
    press("OK");
    EXPECT_TRUE(DebugLog::text().starts_with("The last command can't be kept:")) << DebugLog::text();
    EXPECT_FALSE(app->isVisible());
    EXPECT_EQ(clipboard.text, u"00000000");
}

TEST_F(EditorTest, TellsWhatFailedAndStays)
{
    using Case = std::tuple<bool FakeClipboard::*, std::string, std::string_view>;
    const std::string no_copy = BoxAnswer::box("Failed to copy text to Windows clipboard", "OK");
    open_with({path_of("a.txt"), path_of("b.txt")});
    EXPECT_TRUE(shows("0000000000000000"));
    for (const auto& [fails, text, calls] :
         {Case{&FakeClipboard::can_open, BoxAnswer::box("Failed to open Windows clipboard", "OK"), "o"},
          Case{&FakeClipboard::can_empty, no_copy, "oec"}, Case{&FakeClipboard::can_set, no_copy, "oesc"}}) {
        clipboard.*fails = false;
        clipboard.calls.clear();
        const BoxAnswer box({"OK"});
        press("OK");
        EXPECT_EQ(box.seen(), text);
        EXPECT_EQ(clipboard.calls, calls);
        EXPECT_TRUE(app->isVisible());
        EXPECT_FALSE(read_last_command());
        clipboard.*fails = true;
    }
}

TEST_F(EditorTest, CopiesWhatWasComparedThoughASelectionComes)
{
    clipboard.text = u"CBF43926";
    open_with({path_of("a.txt", "123456789")});
    EXPECT_TRUE(shows("cbf43926"));
    QTimer::singleShot(0, app.get(), [&] {
        ASSERT_TRUE(QApplication::activeModalWidget());
        EXPECT_FALSE(app->isVisible());
        app->on_context_menu_selected(1, {path_of("b.txt", "other")});
        EXPECT_TRUE(becomes([&] { return preview().toPlainText() == "b.txt"; }));
        qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept();
    });
    press("OK");
    EXPECT_FALSE(app->isVisible());
    EXPECT_EQ(clipboard.text, u"cbf43926");
    EXPECT_EQ(read_last_command()->name(), u"Sums");
}

TEST_F(EditorTest, ARunThatFailsIsToldAndNotCopied)
{
    open_with({to_qstring(folder.write_endless("endless"))});
    auto& generator = *app->current_editor()->findChild<PreviewGenerator*>();
    generator.set_command(nullptr);
    // As the worker would, for whichever request is the last; what makes a real run fail is a lack of memory.
    VellumarkWatcher& watcher = generator;
    for (std::uint32_t id = 0; id < 20; ++id) {
        watcher.failure_report(u"Out of paper", id);
        watcher.text_report({}, id);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(generator.failure(), "Out of paper");
    EXPECT_FALSE(preview().isVisible());
    const BoxAnswer box({"OK"});
    press("OK");
    EXPECT_EQ(box.seen(), "Vellumark Configure|Failed to copy text to Windows clipboard\nOut of paper|OK\n");
    EXPECT_TRUE(app->isVisible());
    EXPECT_EQ(clipboard.calls, "");
    app->menu_list().select(1);
    EXPECT_TRUE(shows("endless"));
    EXPECT_EQ(generator.failure(), "");
}

TEST_F(EditorTest, ASelectionEndsTheWaitForTheOldOne)
{
    for (const int row : {2, 1, -1}) {
        open_with({to_qstring(folder.write_endless("endless"))});
        const WaitForTextDlg* box = open_wait_dialog();
        app->on_context_menu_selected(row, {path_of("a.txt")});
        EXPECT_FALSE(box->isVisible());
        EXPECT_TRUE(becomes([&] { return !app->is_selection_coming(); }));
        EXPECT_TRUE(row == 2 || shows(row == 1 ? "a.txt" : "00000000"));
        EXPECT_TRUE(app->isVisible());
        EXPECT_EQ(clipboard.calls, "");
    }
}

TEST_F(EditorTest, OkMeansTheSelectionThatIsComing)
{
    struct Case {
        int row;
        const char* answer;
        bool FakeClipboard::*fails;
        std::u16string_view copied;
        std::string_view calls;
    };

    constexpr std::u16string_view old = u"0xCBF43926";
    for (const Case& c : {Case{1, "", nullptr, u"b.txt", "oesc"}, Case{0, "OK", nullptr, u"cbf43926", "orcoesc"},
                          Case{0, "Cancel", nullptr, old, "orc"}, Case{1, "OK", &FakeClipboard::can_open, old, "o"},
                          Case{0, "OK", &FakeClipboard::can_open, old, "oo"},
                          Case{0, "OK", &FakeClipboard::can_set, old, "orcoesc"}}) {
        clipboard.calls.clear();
        clipboard.text = old;
        folder.write(last_file, "[]");
        if (c.fails)
            clipboard.*c.fails = false;
        open_with({path_of("a.txt")});
        app->menu_list().select(c.row);
        EXPECT_TRUE(shows(c.row == 1 ? "a.txt" : "00000000"));
        app->on_context_menu_selected(-1, {path_of("b.txt", "123456789")});
        const BoxAnswer box({c.answer});
        const QPointer<WaitForTextDlg> waits = open_wait_dialog();
        EXPECT_TRUE(becomes([&] { return !waits && app->isVisible() == (c.fails != nullptr); }));
        EXPECT_EQ(box.seen().empty(), std::string_view(c.answer).empty());
        EXPECT_EQ(clipboard.text, c.copied);
        EXPECT_EQ(clipboard.calls, c.calls);
        EXPECT_EQ(read_last_command() != nullptr, c.copied != old);
        clipboard.can_open = clipboard.can_set = true;
    }
}

TEST_F(EditorTest, OkMeansTheCommandThatShows)
{
    open_with({path_of("a.txt")});
    app->menu_list().select(1);
    EXPECT_TRUE(shows("a.txt"));
    app->on_context_menu_selected(0, {path_of("b.txt")});
    const QPointer<WaitForTextDlg> waits = open_wait_dialog();
    EXPECT_TRUE(shows("00000000"));
    EXPECT_FALSE(waits && waits->isVisible());
    EXPECT_TRUE(app->isVisible());
    EXPECT_EQ(clipboard.calls, "");
}

TEST_F(EditorTest, NoOldTextShowsWhileASelectionComes)
{
    open_with({path_of("a.txt")});
    EXPECT_TRUE(shows("00000000"));
    app->menu_list().select(1);
    auto& generator = *editor().findChild<PreviewGenerator*>();
    for (int i = 0; i < 60'000 && generator.is_reading(); ++i)
        QTest::qSleep(1); // the text stays on its way
    app->on_context_menu_selected(-1, {path_of("b.txt")});
    editor().refresh();
    while (app->is_selection_coming()) {
        EXPECT_FALSE(preview().isVisible());
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(shows("b.txt"));
}

TEST_F(EditorTest, WaitsForTheTextThatIsStillMade)
{
    open_with({to_qstring(folder.write_endless("endless"))});
    open_wait_dialog()->reject();
    EXPECT_TRUE(app->isVisible());
    EXPECT_EQ(clipboard.calls, "");
    QTest::qWait(1); // the box goes
    const WaitForTextDlg* box = open_wait_dialog();
    const auto tells_progress = [](const QWidget* widget) {
        const std::string labels = visible_labels(*widget);
        return labels.find("|Computing checksums...|C:\\") != labels.npos && labels.ends_with("endless");
    };
    EXPECT_TRUE(becomes([&] { return tells_progress(box) && tells_progress(editor().main_widget()); }));
    std::filesystem::resize_file(folder.host("endless"), 0);
    EXPECT_TRUE(becomes([&] { return !app->isVisible(); }));
    ASSERT_TRUE(clipboard.text);
    EXPECT_EQ(to_qstring(*clipboard.text), preview().toPlainText());
}

TEST_F(EditorTest, SuspendedItMakesNoTextUntilOneIsWanted)
{
    open_with({to_qstring(folder.write_endless("endless"))});
    const QPointer<WaitForTextDlg> waits = open_wait_dialog();
    editor().suspend();
    EXPECT_FALSE(waits && waits->isVisible()) << "its text would never come";
    app->menu_list().select(1);
    const auto& generator = *editor().findChild<PreviewGenerator*>();
    EXPECT_TRUE(becomes([&] { return !generator.is_reading(); }) && generator.text().isEmpty());
    press("OK");
    EXPECT_TRUE(becomes([&] { return !app->isVisible(); }));
    EXPECT_EQ(clipboard.text, u"endless");
}

TEST_F(EditorTest, ABuiltinCommandEndsTheWorkOfTheOther)
{
    open_with({to_qstring(folder.write_endless("endless"))});
    VellumarkController& other = editor();
    app->menu_list().select(2);
    const QSignalSpy changes(&other, &CommandControllerBase::current_command_changed);
    other.refresh();
    EXPECT_EQ(changes.count(), 0);
    const std::string labels = visible_labels(*app->current_editor()->main_widget());
    EXPECT_TRUE(labels.starts_with(
        "<h2>File Action Command</h2>|<h3>Copy Filename and Delete</h3><p>Copies the name of the selected"));
    EXPECT_NE(labels.find("<i>Paste Filename</i> on the replacement file.</p><p><i>"), labels.npos);
    press("OK");
    EXPECT_FALSE(app->isVisible());
    EXPECT_EQ(clipboard.calls, "");
}

TEST_F(EditorTest, PreviewFollowsTheCommandAndTheSelection)
{
    open_with({});
    app->menu_list().select(1);
    const auto edit = [this](const char16_t* text) { editor().current_command()->set_start_text(text); };
    edit(u"(");
    editor().update_after_curr_command_changed();
    EXPECT_TRUE(becomes([&] { return preview().toPlainText() == "("; }));
    EXPECT_TRUE(visible_labels(*app).starts_with("<h2><b>No items selected</b></h2>"));
    app->on_context_menu_selected(-1, {path_of("a.txt")});
    EXPECT_TRUE(shows("(a.txt"));
    edit(u"<");
    editor().update_after_curr_command_changed();
    EXPECT_TRUE(shows("<a.txt"));
    EXPECT_TRUE(button("Save"));
    edit(u"{");
    editor().refresh();
    EXPECT_TRUE(shows("{a.txt"));
    editor().begin_update();
    edit(u"[");
    editor().end_update();
    EXPECT_TRUE(shows("[a.txt"));
    app->on_context_menu_selected(-1, {path_of("b.txt")});
    EXPECT_TRUE(shows("[b.txt"));
}
