#include "app/editors.h"
#include "app_test.h"
#include "box_answer.h"
#include "store/last_command.h"
#include "support/fake_clipboard.h"
#include "ui/editor/builtin_commands_main_widget.h"
#include "ui/editor/vellumark_controller.h"
#include "ui/preview/wait_for_text_dlg.h"
#include "ui/text.h"

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

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
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return app->selected_items()->items().size() == std::size_t(paths.size()); }));
    }

    QString path_of(std::string_view name, std::string_view content) const
    {
        return to_qstring(folder.write(name, content));
    }

    QPlainTextEdit& preview() const { return *app->findChild<QPlainTextEdit*>(); }

    bool shows(const QString& text) const
    {
        return QTest::qWaitFor([&] { return preview().isVisible() && preview().toPlainText() == text; }, 60'000);
    }

    FakeClipboard clipboard;
};

}

TEST_F(EditorTest, ShowsTheTextAndCopiesIt)
{
    open_with({path_of("a.txt", "123456789"), path_of("b.txt", "")});
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

TEST_F(EditorTest, TellsWhatFailedAndStays)
{
    struct Case {
        bool FakeClipboard::*fails;
        std::string_view box, calls;
    };

    constexpr std::string_view no_copy = "Vellumark Configure|Failed to copy text to Windows clipboard|OK\n";
    open_with({path_of("a.txt", ""), path_of("b.txt", "")});
    EXPECT_TRUE(shows("0000000000000000"));
    for (const Case& c :
         {Case{&FakeClipboard::can_open, "Vellumark Configure|Failed to open Windows clipboard|OK\n", "o"},
          Case{&FakeClipboard::can_empty, no_copy, "oec"}, Case{&FakeClipboard::can_set, no_copy, "oesc"}}) {
        clipboard.*c.fails = false;
        clipboard.calls.clear();
        const BoxAnswer box({"OK"});
        press("OK");
        EXPECT_EQ(box.seen(), c.box);
        EXPECT_EQ(clipboard.calls, c.calls);
        EXPECT_TRUE(app->isVisible());
        EXPECT_FALSE(read_last_command());
        clipboard.*c.fails = true;
    }
}

TEST_F(EditorTest, ComparesOneChecksumWithTheClipboard)
{
    for (const auto& [answer, copied] : {std::pair{"Cancel", u"0xCBF43926"}, std::pair{"OK", u"cbf43926"}}) {
        clipboard.text = u"0xCBF43926";
        open_with({path_of("a.txt", "123456789")});
        EXPECT_TRUE(shows("cbf43926"));
        bool was_hidden = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] { was_hidden |= !app->isVisible(); });
        watch.start(0);
        const BoxAnswer box({answer});
        press("OK");
        EXPECT_TRUE(was_hidden);
        EXPECT_FALSE(app->isVisible());
        EXPECT_EQ(clipboard.text, copied);
    }
    clipboard.text = u"0xCBF43926";
    clipboard.can_set = false;
    open_with({path_of("a.txt", "123456789")});
    EXPECT_TRUE(shows("cbf43926"));
    const BoxAnswer box({"OK"});
    press("OK");
    EXPECT_TRUE(app->isVisible()) << "the user may try again";
}

TEST_F(EditorTest, CopiesWhatWasComparedThoughASelectionComes)
{
    clipboard.text = u"CBF43926";
    open_with({path_of("a.txt", "123456789")});
    EXPECT_TRUE(shows("cbf43926"));
    QTimer::singleShot(0, app.get(), [&] {
        ASSERT_TRUE(QApplication::activeModalWidget());
        app->on_context_menu_selected(1, {path_of("b.txt", "other")});
        EXPECT_TRUE(QTest::qWaitFor([&] { return preview().toPlainText() == "b.txt"; }, 60'000));
        qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept();
    });
    press("OK");
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
        press("OK");
        auto* box = app->findChild<WaitForTextDlg*>();
        ASSERT_TRUE(box && box->isVisible());
        app->on_context_menu_selected(row, {path_of("a.txt", "")});
        EXPECT_FALSE(box->isVisible());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !app->is_selection_coming(); }, 60'000));
        EXPECT_TRUE(row == 2 || shows(row == 1 ? "a.txt" : "00000000"));
        EXPECT_TRUE(app->isVisible());
        EXPECT_EQ(clipboard.calls, "");
    }
}

TEST_F(EditorTest, OkMeansTheSelectionThatIsComingAndTheCommandThatShows)
{
    for (const int row : {-1, 0}) {
        open_with({path_of("a.txt", "")});
        app->menu_list().select(1);
        EXPECT_TRUE(shows("a.txt"));
        app->on_context_menu_selected(row, {path_of("b.txt", "")});
        press("OK");
        EXPECT_TRUE(app->isVisible());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !app->is_selection_coming(); }, 60'000));
        EXPECT_TRUE(row == 0 ? shows("00000000") : QTest::qWaitFor([&] { return !app->isVisible(); }, 60'000));
        EXPECT_EQ(clipboard.text, row == 0 ? std::nullopt : std::optional<std::u16string>(u"b.txt"));
        clipboard.text.reset();
    }
}

TEST_F(EditorTest, NoOldTextShowsWhileASelectionComes)
{
    open_with({path_of("a.txt", "")});
    EXPECT_TRUE(shows("00000000"));
    app->menu_list().select(1);
    auto& generator = *app->current_editor()->findChild<PreviewGenerator*>();
    while (generator.is_reading())
        QTest::qSleep(1);
    app->on_context_menu_selected(-1, {path_of("b.txt", "")});
    app->current_editor()->refresh();
    while (app->is_selection_coming()) {
        EXPECT_FALSE(preview().isVisible());
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(shows("b.txt"));
}

TEST_F(EditorTest, WaitsForTheTextThatIsStillMade)
{
    open_with({to_qstring(folder.write_endless("endless"))});
    press("OK");
    auto* box = app->findChild<WaitForTextDlg*>();
    ASSERT_TRUE(box && box->isVisible());
    box->reject();
    EXPECT_TRUE(app->isVisible());
    EXPECT_EQ(clipboard.calls, "");
    QTest::qWait(1); // the box goes
    press("OK");
    box = app->findChild<WaitForTextDlg*>();
    ASSERT_TRUE(box && box->isVisible());
    std::filesystem::resize_file(folder.host("endless"), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !app->isVisible(); }, 60'000));
    ASSERT_TRUE(clipboard.text);
    EXPECT_EQ(to_qstring(*clipboard.text), preview().toPlainText());
}

TEST_F(EditorTest, PagesFollowTheCommandAndTheSelection)
{
    open_with({path_of("a.txt", "")});
    app->menu_list().select(2);
    QStringList labels;
    for (const QLabel* label : app->findChild<BuiltinCommandsMainWidget*>()->findChildren<QLabel*>())
        labels += label->isVisible() ? label->text() : "hidden";
    EXPECT_TRUE(labels.join('|').startsWith(
        "<h2>File Action Command</h2>|hidden|<h3>Copy Filename and Delete</h3><p>Copies the name"));
    EXPECT_TRUE(labels.back().contains("<i>Paste Filename</i> on the replacement file.</p><p><i>"));
    app->menu_list().select(1);
    EXPECT_TRUE(shows("a.txt"));
    auto& command = dynamic_cast<VellumarkCommand&>(*app->menu_list().current_command());
    command.set_start_text(u"<");
    app->current_editor()->refresh();
    EXPECT_TRUE(shows("<a.txt"));
    EXPECT_TRUE(button("Save"));
    app->current_editor()->begin_update();
    command.set_start_text(u"[");
    app->current_editor()->end_update();
    EXPECT_TRUE(shows("[a.txt"));
    app->on_context_menu_selected(-1, {path_of("b.txt", "")});
    EXPECT_TRUE(shows("[b.txt"));
}
