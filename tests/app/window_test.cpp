#include "app_test.h"
#include "box_answer.h"
#include "debug_log.h"

#include "app/appearance.h"
#include "engine/items/mv_items_set.h"
#include "support/becomes.h"
#include "support/browser.h"
#include "ui/colours.h"
#include "ui/lists/commands_table_view.h"
#include "ui/text.h"

#include <QApplication>
#include <QTest>
#include <QToolButton>

#include <functional>
#include <stdexcept>
#include <utility>

namespace {

TEST_F(AppTest, TakesSelections)
{
    struct Case {
        int tab, index;
        std::vector<std::string> names;
        std::string_view expected;
        std::size_t items;
    };

    const Case cases[] = {
        {0, 2, {"a.txt", "b.txt"}, "menu[A, B, *C] library[L]", 2},
        {1, 1, {"a.txt"}, "menu[A, *B, C] library[L]", 1},
        {1, -1, {"a.txt"}, "library[*L] menu[*A, B, C]", 1},
        {1, 0, {"a.txt"}, "menu[*A, B, C] library[L]", 1},
        {0, 99, {"missing", "b.txt"}, "menu[*A, B, C] library[L]", 1},
    };
    folder.write("a.txt");
    folder.write("b.txt");
    store("A, B, C", "L");
    for (const Case& c : cases) {
        open_again();
        show_tab(c.tab);
        editor->calls.clear();
        QStringList paths;
        for (const std::string& name : c.names)
            paths += to_qstring(folder.path(name));
        app->on_context_menu_selected(c.index, paths);
        EXPECT_TRUE(becomes([&] { return editor->calls.ends_with("refresh "); }));
        EXPECT_EQ(editor->calls, "coming refresh ");
        std::string expected(c.expected);
        if (!expected.starts_with("library"))
            expected.insert(expected.find("[L]") + 1, "*");
        EXPECT_EQ(state(), expected);
        EXPECT_EQ(app->selected_items()->items().size(), c.items);
    }
}

TEST_F(AppTest, RefreshesAfterASelectionThatCantBeTakenWhole)
{
    const std::vector<std::pair<std::function<void()>, std::string_view>> cases{
        {[] { throw std::runtime_error("no more"); }, "Exception in on_context_menu_selected: no more"},
        {[] { throw 1; }, "Unknown exception in on_context_menu_selected"}};
    store("A", "L");
    for (const auto& [fail, told] : cases) {
        open_again();
        show_tab(1);
        editor->calls.clear();
        editor->before_offer = fail;
        const DebugLog log;
        app->on_context_menu_selected(0, {path_of("a.txt")});
        EXPECT_TRUE(becomes([&] { return editor->calls == "coming refresh "; })) << editor->calls;
        EXPECT_TRUE(DebugLog::text().ends_with(told)) << DebugLog::text();
        EXPECT_EQ(app->selected_items()->items().size(), 1U);
        editor->before_offer = nullptr;
    }
}

TEST_F(AppTest, ReturnIsForTheDefaultButtonAlone)
{
    store("A, More");
    open();
    editor->may_close = false;
    app->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(app.get()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(std::exchange(editor->calls, ""), "run ");
    auto* list = app->findChild<CommandsTableView*>();
    list->setFocus();
    ASSERT_TRUE(list->hasFocus());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(list, key);
        EXPECT_TRUE(app->isVisible());
    }
    EXPECT_EQ(editor->calls, "");
    app->setFocus();
    QTest::keyClick(app.get(), Qt::Key_Return);
    EXPECT_EQ(editor->calls, "run ");
}

TEST_F(AppTest, ShowsHelpAndAbout)
{
    store("A, More");
    open();
    const Browser browser;
    press("Help");
    EXPECT_EQ(browser.opened(), "https://vellumark.example/vellumark/help/4.7/index.html?configure.html");
    const BoxAnswer box({"OK"});
    for (QToolButton* tool : app->findChildren<QToolButton*>())
        if (tool->text() == "About")
            tool->click();
    EXPECT_TRUE(becomes([&box] { return !box.seen().empty(); }));
    EXPECT_EQ(box.seen(), "About Vellumark||OK\n");
}

TEST(Appearance, FollowsTheDesktop)
{
    const QPalette before = QApplication::palette();
    auto* application = qobject_cast<QApplication*>(QCoreApplication::instance());
    {
        const Appearance appearance(*application);
        for (const bool dark : {true, false, true}) {
            QPalette palette = before;
            palette.setColor(QPalette::Window, dark ? Qt::black : Qt::white);
            palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
            QApplication::setPalette(palette);
            EXPECT_EQ(colours::dark_mode(), dark);
        }
        QPalette careless = before;
        careless.setColor(QPalette::Base, Qt::black);
        careless.setColor(QPalette::Text, Qt::white);
        careless.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
        QApplication::setPalette(careless);
        EXPECT_EQ(QApplication::palette().color(QPalette::PlaceholderText), QColor(255, 255, 255, 128));
        QApplication::setPalette(before);
        EXPECT_FALSE(colours::dark_mode());
    }
    application->setStyleSheet({});
}

}
