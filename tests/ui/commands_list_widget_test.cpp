#include "list_fixture.h"
#include "ui/dialogs/change_command_name_dlg.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace {

class CommandsListUse : public ListFixture
{
protected:
    CommandsListUse()
    {
        widget.show();
        view.setFocus();
        QApplication::setActiveWindow(&widget);
    }

    QPoint in_cell(int row, int column) const
    {
        return view.visualRect(app.menu.model().index(row, column)).center();
    }

    void click(int row, int column, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, in_cell(row, column));
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const { QTest::keyClick(&view, key, modifiers); }

    /// The entries of the menu that is open, or "none"; closes it.
    static std::string open_menu()
    {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return "none";
        QStringList texts;
        for (const QAction* action : menu->actions())
            texts << action->text();
        menu->close();
        return texts.join(", ").toStdString();
    }

    std::string entries(CommandsListWidget& list, int row) const
    {
        QStringList texts;
        for (const ListMenuEntry& entry : list.menu_entries(row))
            texts << entry.text;
        return texts.join(", ").toStdString();
    }

    void run_entry(const QString& text, int row)
    {
        for (const ListMenuEntry& entry : widget.menu_entries(row))
            if (entry.text == text)
                entry.run();
    }

    CommandsTableView& view = widget.view();
};

TEST_F(CommandsListUse, RowsFollowTheUser)
{
    const QSignalSpy clicks(&widget, &CommandsListWidget::list_clicked);
    click(1, 1);
    EXPECT_EQ(menu_shown(), "A >B C D ");
    key(Qt::Key_Down);
    EXPECT_EQ(menu_shown(), "A B >C D ");
    click(0, 0, Qt::ControlModifier);
    EXPECT_EQ(menu_shown(), ">A B +C D ");
    EXPECT_EQ(clicks.count(), 2);
    const int steps = app.stack.index();
    key(Qt::Key_End);
    EXPECT_EQ(menu_shown(), "A B C >D ");
    key(Qt::Key_Up);
    key(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(menu_shown(), ">A +B +C D ");
    app.stack.setIndex(steps);
    app.stack.undo();
    EXPECT_EQ(menu_shown(), "A B >C D ");
    app.stack.undo();
    app.stack.undo();
    EXPECT_EQ(menu_shown(), ">A B C D ");
    EXPECT_FALSE(app.stack.canUndo());
    app.menu.set_commands({});
    app.menu.set_current_row(0);
    EXPECT_EQ(menu_shown(), "Save");
}

TEST_F(CommandsListUse, DeleteKeyTakesAllSelectedRows)
{
    click(1, 1);
    click(2, 1, Qt::ControlModifier);
    const int steps = app.stack.index();
    key(Qt::Key_Delete);
    EXPECT_EQ(menu_shown(), "A >D Save");
    EXPECT_EQ(app.stack.index(), steps + 1);
}

TEST_F(CommandsListUse, EditInPlace)
{
    click(2, 0);
    const auto type = [&](const QString& text) {
        key(Qt::Key_F2);
        auto* edit = view.findChild<QLineEdit*>();
        ASSERT_NE(edit, nullptr);
        edit->selectAll();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(view.findChild<QLineEdit*>(), nullptr);
        EXPECT_TRUE(view.hasFocus());
    };
    const int steps = app.stack.index();
    type("New");
    EXPECT_EQ(menu_shown(), "A B >New* D Save");
    EXPECT_EQ(app.stack.index(), steps + 1) << "the keyboard's way back into the list is no step";
    type("New");
    EXPECT_EQ(app.stack.index(), steps + 1);
    key(Qt::Key_F2); // and the window goes with the edit open
    QTest::keyClicks(view.findChild<QLineEdit*>(), "Last");
}

TEST_F(CommandsListUse, AChangeKeepsThePlace)
{
    QStringList names;
    for (int i = 0; i < 200; ++i)
        names << QString::number(i);
    app.menu.set_commands(commands_named(names));
    app.menu.set_current_row(100);
    QCoreApplication::processEvents();
    const int place = view.verticalScrollBar()->value();
    ASSERT_GT(place, 0);
    app.menu.rename(100, u"New", u"");
    QCoreApplication::processEvents();
    EXPECT_EQ(view.verticalScrollBar()->value(), place);
    app.stack.undo();
    QCoreApplication::processEvents();
    EXPECT_EQ(view.verticalScrollBar()->value(), place);
}

TEST_F(CommandsListUse, WhatTheMenuOffers)
{
    TestEditor editor(app);
    app.menu.set_commands(commands_named({"A", "B", "=C"}));
    app.menu.set_current_row(0);
    EXPECT_EQ(entries(widget, 0), "Rename, Delete, Move to Commands Library") << "no editor";
    app.editor = &editor;
    EXPECT_EQ(entries(widget, 0), "Duplicate, Rename, Delete, Move to Commands Library");
    editor.duplicates = false;
    EXPECT_EQ(entries(widget, 0), "Rename, Delete, Move to Commands Library");
    EXPECT_EQ(entries(library_widget, 0), "Rename, Delete, Move to Context Menu");
    EXPECT_EQ(entries(widget, 3), "");

    auto& command = dynamic_cast<VellumarkCommand&>(*app.menu.command_at(0));
    command.commit();
    command.set_separator(u"; ");
    app.menu.command_at(1)->set_from_previous_session(true);
    EXPECT_EQ(entries(widget, 0), "Rename, Delete, Move to Commands Library, Discard Changes");
    select_rows({0, 1});
    EXPECT_EQ(entries(widget, 0), "Delete, Move to Commands Library");
    EXPECT_EQ(entries(widget, 1), "Delete, Move to Commands Library, Commit Changes");
    select_rows({1, 2});
    EXPECT_EQ(entries(widget, 2), "Delete");
}

TEST_F(CommandsListUse, WhatTheMenuDoes)
{
    TestEditor editor(app);
    app.editor = &editor;
    const QSignalSpy moves(&widget, &CommandsListWidget::move_commands);
    run_entry("Duplicate", 0);
    EXPECT_EQ(app.calls, "duplicate ");
    run_entry("Move to Commands Library", 0);
    EXPECT_EQ(moves.count(), 1);

    run_entry("Rename", 0);
    auto* dialog = widget.findChild<ChangeCommandNameDlg*>();
    ASSERT_NE(dialog, nullptr);
    dialog->findChildren<QLineEdit*>().front()->setText("Z");
    dialog->accept();
    EXPECT_EQ(menu_shown(), ">Z* B C D Save");
    run_entry("Delete", 0);
    EXPECT_EQ(menu_shown(), ">B C D Save");
}

TEST_F(CommandsListUse, WaysToTheMenu)
{
    const std::string one = "Rename, Delete, Move to Commands Library";
    EXPECT_EQ(open_menu(), "none");
    click(1, 2);
    EXPECT_EQ(open_menu(), one);
    EXPECT_EQ(menu_shown(), "A >B C D ");
    key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(open_menu(), one);

    const auto ask = [&](QContextMenuEvent::Reason reason, QPoint place) {
        QContextMenuEvent event(reason, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(reason == QContextMenuEvent::Mouse ? view.viewport() : &view, &event);
    };
    ask(QContextMenuEvent::Keyboard, in_cell(3, 1));
    EXPECT_EQ(open_menu(), one);
    EXPECT_EQ(menu_shown(), "A >B C D ") << "a key's menu is that of the current row";
    select_rows({0, 2});
    ask(QContextMenuEvent::Mouse, in_cell(2, 1));
    EXPECT_EQ(open_menu(), "Delete, Move to Commands Library");
    EXPECT_EQ(menu_shown(), "+A B >C D ");
    key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(menu_shown(), "+A B +C ?D ");
    key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(open_menu(), one);
    EXPECT_EQ(menu_shown(), "A B C >D ");
    ask(QContextMenuEvent::Mouse, in_cell(3, 1) + QPoint(0, 60));
    EXPECT_EQ(open_menu(), "none") << "below the last row";

    click(1, 2);
    app.menu.select(0);
    EXPECT_EQ(open_menu(), "none") << "another command is current";
}

TEST(CommandsListLife, ListsMayGoBeforeTheirWidgets)
{
    QWidget window;
    auto app = std::make_unique<FakeApp>();
    app->menu.model().set_saved_commands(commands_named({"A"}));
    app->menu.select_without_undo(0);
    auto* widget = new CommandsListWidget(*app, app->menu, false, &window);
    window.show();
    app.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(widget->view().model(), nullptr);
}

}
