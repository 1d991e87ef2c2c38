#include "app_test.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>

namespace {

std::string accessible_name(QWidget* widget)
{
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(QAccessible::Name).remove('&').toStdString() : "";
}

TEST_F(AppTest, EveryControlIsReachedByTabAndHasAName)
{
    store("A, More", "L");
    open();
    app->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(app.get()));
    app->menu_list().select(1);
    app->undo_stack().undo();
    app->new_command_btn_pressed();
    app->undo_stack().push(new QUndoCommand("Step"));
    app->undo_stack().undo();

    std::vector<std::string> names;
    QWidget* const first = QApplication::focusWidget();
    do {
        names.push_back(accessible_name(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && names.size() < 50);
    // The default button has the focus at the start; behind the lists' tabs comes the list that shows.
    EXPECT_EQ(testing::PrintToString(names),
              R"({ "OK", "Cancel", "Help", "Undo New Command", "Redo Step", "About", "Context Menu Commands", )"
              R"("Context Menu Commands", "Save", "Duplicate", "New", "Delete", "Divider" })");
}

}
