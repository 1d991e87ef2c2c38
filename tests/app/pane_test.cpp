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

    /// What Tab comes to from the pane's first field on.
    std::vector<QWidget*> tab_order() const
    {
        auto& first = *app->findChild<DisclosureTriangle*>();
        first.setFocus(Qt::TabFocusReason);
        std::vector<QWidget*> fields;
        while (pane().isAncestorOf(app->focusWidget()) && fields.size() < 100) {
            fields.push_back(app->focusWidget());
            const bool types_tabs = qobject_cast<QTextEdit*>(app->focusWidget());
            QTest::keyClick(app->focusWidget(), Qt::Key_Tab, types_tabs ? Qt::ControlModifier : Qt::NoModifier);
        }
        return fields;
    }
};

TEST_F(Pane, TabFollowsThePage)
{
    open_filters();
    control<QCheckBox>("Folders To Text", "Add Files From Folders").click();
    for (int twice = 0; twice < 2; ++twice) {
        control<QCheckBox>("Folders To Text", "Same As Files").click();
        QTest::qWait(300);
        int below = 0;
        const auto fields = tab_order();
        EXPECT_GT(fields.size(), 12U);
        for (QWidget* field : fields) {
            const int y = field->mapTo(pane().widget(), QPoint(0, field->height() / 2)).y();
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(field);
            EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << field->metaObject()->className();
            EXPECT_GE(y, below - 8) << spoken->text(QAccessible::Name).toStdString();
            below = y;
        }
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
    EXPECT_TRUE(pane().isVisible());
    auto& splitter = dynamic_cast<QSplitter&>(*pane().parentWidget());
    splitter.setSizes({321, 400});
    const int height = pane().height();
    for (const bool open : {true, false, true}) {
        app->current_editor()->set_expanded(open);
        app->reject();
        app.reset();
        app = std::make_unique<MirvantaApp>(editors_with(clipboard));
        app->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(app.get()));
        EXPECT_EQ(pane().isVisible(), open);
    }
    EXPECT_TRUE(becomes([&] { return pane().height() == height; })) << pane().height() << " " << height;
}

}
