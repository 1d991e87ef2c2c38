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

    const auto round = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        std::vector<std::string> names;
        QWidget* const first = QApplication::focusWidget();
        do {
            names.push_back(accessible_name(QApplication::focusWidget()));
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        } while (QApplication::focusWidget() != first && names.size() < 50);
        return testing::PrintToString(names);
    };
    button("Save")->setFocus();
    EXPECT_EQ(round(Qt::Key_Tab, {}), R"({ "Save", "Duplicate", "New", "Delete", "OK", "Cancel", "Help", "Undo New )"
                                      R"(Command", "Redo Step", "About", "", "Context Menu Commands" })");
    EXPECT_EQ(round(Qt::Key_Backtab, Qt::ShiftModifier), "");
}

}
