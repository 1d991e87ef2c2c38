#include "editing_page.h"
#include "support/becomes.h"
#include "ui/editor/editing_pane.h"
#include "ui/lists/commands_list_widget.h"
#include "ui/lists/commands_table_view.h"
#include "ui/widgets/disclosure_header.h"
#include "ui/widgets/disclosure_triangle.h"

#include <QAccessible>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <QWheelEvent>

namespace {

class Pane : public EditingPage
{
protected:
    Pane()
    {
        app->resize(900, 1000);
        app->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(app.get()));
    }

    EditingPane& pane() const { return *app->findChild<EditingPane*>(); }
};

TEST_F(Pane, TabFollowsThePage)
{
    open_filters();
    control<QCheckBox>("Folders To Text", "Add Files From Folders").click();
    for (int twice = 0; twice < 2; ++twice) {
        control<QCheckBox>("Folders To Text", "Same As Files").click();
        QTest::qWait(300);
        app->findChild<DisclosureTriangle*>()->setFocus(Qt::TabFocusReason);
        int below = 0;
        int count = 0;
        for (QWidget* field = app->focusWidget(); pane().isAncestorOf(field) && count < 100; ++count) {
            const int y = field->mapTo(pane().widget(), QPoint(0, field->height() / 2)).y();
            const QString name = QAccessible::queryAccessibleInterface(field)->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << field->metaObject()->className();
            EXPECT_GE(y, below - 8) << name.toStdString();
            below = y;
            const bool types_tabs = qobject_cast<QTextEdit*>(field);
            QTest::keyClick(field, Qt::Key_Tab, types_tabs ? Qt::ControlModifier : Qt::NoModifier);
            field = app->focusWidget();
        }
        EXPECT_TRUE(count > 12 && count < 100) << count;
    }
}

TEST_F(Pane, ScrollsByTheWheelAndWithTheSectionAtWork)
{
    app->resize(900, 650);
    QScrollBar& bar = *pane().verticalScrollBar();
    ASSERT_TRUE(becomes([&] { return bar.maximum() > 100; }));
    auto& sort = control<QComboBox>("Sort Options", "Sort Options");
    auto& depth = control<QSpinBox>("Folders To Text", "Limit Folder Scan Depth: ");
    control<QCheckBox>("Folders To Text", "Add Files From Folders").click();
    const int steps = app->undo_stack().count();
    for (QWidget* field : std::initializer_list<QWidget*>{&sort, &depth}) {
        bar.setValue(0);
        QWheelEvent wheel({5, 5}, field->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(field, &wheel);
        EXPECT_FALSE(wheel.isAccepted());
    }
    EXPECT_EQ(app->undo_stack().count(), steps);

    bar.setValue(0);
    auto& end = control<VariableSizeTextEdit>("Additional Text", "At End:");
    end.setFocus();
    for (int line = 0; line < 9; ++line)
        QTest::keyClick(&end, Qt::Key_Return);
    EXPECT_EQ(end.height(), 120);
    EXPECT_TRUE(becomes(
        [&] { return pane().viewport()->rect().contains(end.mapTo(pane().viewport(), end.rect().bottomLeft())); }));

    command().set_file_filter_enabled(true);
    app->current_editor()->refresh();
    open_filters();
    press("New");
    app->findChild<CommandsListWidget*>()->view().setFocus();
    QTest::qWait(300);
    bar.setValue(bar.maximum());
    const int place = bar.value();
    app->menu_list().select(0);
    QTest::qWait(300);
    EXPECT_EQ(bar.value(), place) << "though a section has grown";
}

TEST_F(Pane, KeysWorkFromEverywhere)
{
    const auto area = [&] {
        const QWidget* focus = app->focusWidget();
        return std::string(pane().isAncestorOf(focus)                     ? "pane"
                           : focus == app->findChild<QPlainTextEdit*>()   ? "preview"
                           : qobject_cast<const DisclosureHeader*>(focus) ? "header"
                           : qobject_cast<const QTableView*>(focus)       ? "list"
                                                                          : "elsewhere");
    };
    const auto press_key = [&](Qt::KeyboardModifiers modifiers, Qt::Key key) {
        QTest::keyClick(app->focusWidget(), key, modifiers);
        return area();
    };
    app->on_context_menu_selected(-1, {path_of("a.txt")});
    ASSERT_TRUE(becomes([&] { return app->findChild<QPlainTextEdit*>()->isVisible(); }));
    for (const char* expected : {"list", "pane", "preview", "list"})
        EXPECT_EQ(press_key({}, Qt::Key_F6), expected);
    control<QComboBox>("Sort Options", "Sort Options").setFocus();
    EXPECT_EQ(press_key(Qt::ShiftModifier, Qt::Key_F6), "list");
    press_key({}, Qt::Key_F6);
    EXPECT_EQ(app->focusWidget()->accessibleName(), "Sort Options") << "where one was";
    app->current_editor()->set_expanded(false);
    app->menu_list().select_without_undo(0);
    app->focusWidget()->clearFocus();
    for (const char* expected : {"list", "header", "preview"})
        EXPECT_EQ(press_key({}, Qt::Key_F6), expected);

    press_key(Qt::ControlModifier, Qt::Key_N);
    press_key(Qt::ControlModifier, Qt::Key_D);
    EXPECT_EQ(app->menu_list().commands().size(), 4U);
    press_key(Qt::ControlModifier, Qt::Key_S);
    EXPECT_FALSE(button("Save"));
}

TEST_F(Pane, ComesBackAsItWasLeft)
{
    dynamic_cast<QSplitter&>(*pane().parentWidget()).setSizes({321, 400});
    const int height = pane().height();
    for (const bool open : {true, false, true}) {
        if (pane().isVisible() != open)
            QTest::mouseClick(app->current_editor()->main_widget()->findChild<DisclosureHeader*>(), Qt::LeftButton);
        EXPECT_EQ(pane().isVisible(), open);
        app->reject();
        app.reset();
        app = std::make_unique<MirvantaApp>(editors_with(clipboard));
        app->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(app.get()));
        EXPECT_EQ(pane().isVisible(), open);
    }
    EXPECT_TRUE(becomes([&] { return pane().height() == height; })) << pane().height() << " " << height;
}

TEST_F(Pane, WhatIsTypedBelongsToTheCommandBefore)
{
    const auto type = [&](const char* text) {
        control<QComboBox>("Files To Text", "Filter type").setCurrentText("Wildcard");
        auto& field = control<QLineEdit>("Files To Text", "Pattern:");
        field.setFocus();
        QTest::keyClicks(&field, text);
    };
    const auto steps = [&] {
        std::string texts;
        for (int step = 0; step < app->undo_stack().count(); ++step)
            texts += app->undo_stack().text(step).remove("Change Filter ").toStdString() + " ";
        return texts;
    };
    open_filters();
    type("*.a");
    app->menu_list().select(1);
    EXPECT_TRUE(becomes([&] { return steps() == "Type Select Stored Command Pattern "; })) << steps();
    type("b");
    app->on_context_menu_selected(1, {path_of("a.txt")});
    EXPECT_TRUE(becomes([&] {
        return steps() == "Type Select Stored Command Pattern Pattern Select Stored Command ";
    })) << steps();
    EXPECT_EQ(state(), "menu[One', *More] library[*Two] save");
    EXPECT_EQ(dynamic_cast<VellumarkCommand&>(*app->menu_list().command_at(0)).file_filter().filter_pattern(),
              u"*.ab");
}

}
