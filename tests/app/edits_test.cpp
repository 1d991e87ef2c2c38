#include "app_test.h"

#include "app/list_edits.h"
#include "store/mv_command_builtin.h"

#include <QAction>
#include <QTest>

#include <functional>

namespace {

TEST_F(AppTest, EditsTheActiveListInSingleSteps)
{
    struct Case {
        bool in_library;
        int current;
        std::initializer_list<int> selected;
        std::function<void()> act;
        std::string_view text; ///< of the undo step; empty: nothing happens
        std::string expected;
    };

    const auto create = [this] { press("New"); };
    const auto copy = [this] { press("Duplicate"); };
    const auto remove = [this] { press("Delete"); };
    const auto move = [this] { app->move_commands_to_other_list(); };
    const std::string library = " library[*L, M, N]";
    const Case cases[] = {
        {false, 1, {1}, create, "New Command", "menu[A, B (Copy), *', More, Z]" + library},
        {true, 2, {2}, create, "New Command", "library[L, M, N, *'] menu[*A, B (Copy), More, Z]"},
        {false, 0, {0}, copy, "Duplicate Command", "menu[A, *A (Copy)', B (Copy), More, Z]" + library},
        {false, 1, {1}, copy, "Duplicate Command", "menu[A, B (Copy), *B (Copy 2)', More, Z]" + library},
        {false, 2, {2}, remove, "Delete Command", "menu[A, B (Copy), *Z]" + library},
        {false, 3, {0, 3}, remove, "Delete Command", "menu[B (Copy), *More]" + library},
        {false, 0, {0, 1}, move, "Move Command", "menu[*More, Z] library[L, M, N, *A, B (Copy)]"},
        {false, 3, {3}, move, "Move Command", "menu[A, B (Copy), *More] library[L, M, N, *Z]"},
        {false, 3, {2, 3}, move, "", ""},
        {false, 0, {}, move, "", ""},
        {true, 1, {0, 1, 2}, move, "Move Command", "library[] menu[A, B (Copy), More, Z, *L, M, N]"},
    };
    store("A, B (Copy), More, Z", "L, M, N");
    for (const Case& c : cases) {
        open_again();
        show_tab(c.in_library ? 1 : 0);
        app->active_list().select_without_undo(c.current);
        select_rows(app->active_list(), c.selected);
        const std::string before = state(), after = c.text.empty() ? before : c.expected + " save";
        c.act();
        EXPECT_EQ(app->undo_stack().undoText().toStdString(), c.text);
        EXPECT_EQ(state(), after);
        app->undo_stack().undo();
        EXPECT_EQ(state(), before);
        app->undo_stack().redo();
        EXPECT_EQ(state(), after);
    }
}

TEST_F(AppTest, ABuiltinCommandGoesToTheMenu)
{
    store("A, More", "L");
    open();
    const auto add = [this](const char16_t* name) {
        list_edits::add(*app, std::make_shared<MVCommandBuiltin>(CommandType::MultiRename, name), "Add");
    };
    add(u"In");
    EXPECT_EQ(state(), "menu[A, *In', More] library[*L] save");
    show_tab(1);
    add(u"Out");
    EXPECT_EQ(state(), "menu[A, In', *Out', More] library[*L] save");
    app->undo_stack().undo();
    EXPECT_EQ(state(), "menu[A, *In', More] library[*L] save");
}

TEST_F(AppTest, DuplicateTakesTheEditsAlong)
{
    store("A, More", "A (Copy)");
    open();
    editor->change_separator(u"; ");
    EXPECT_EQ(state(), "menu[*A', More] library[*A (Copy)] save");
    editor->calls.clear();
    press("Duplicate");
    EXPECT_EQ(state(), "menu[A, *A (Copy 2)', More] library[*A (Copy)] save");
    EXPECT_EQ(editor->current->separator(), u"; ");
    EXPECT_EQ(editor->calls, "focus ");
    const auto source = std::dynamic_pointer_cast<VellumarkCommand>(app->menu_list().command_at(0));
    EXPECT_EQ(source->separator(), u"");
    app->undo_stack().undo();
    EXPECT_EQ(state(), "menu[*A', More] library[*A (Copy)] save");
}

TEST_F(AppTest, WhatAStepChangesIsShownOnce)
{
    store("A, B, More", "L");
    open();
    const auto seen = [this](const auto& act) {
        editor->calls.clear();
        editor->offers = 0;
        act();
        return std::to_string(editor->offers) + " " + editor->calls + state();
    };
    editor->change_separator(u"; ");
    const std::string edited = "menu[*A', B, More] library[*L] save", saved = "menu[*A, B, More] library[*L]";
    EXPECT_EQ(seen([this] { app->menu_list().discard(0); }), "0 refresh " + saved);
    EXPECT_EQ(seen([this] { app->undo_stack().undo(); }), "0 refresh " + edited);
    app->menu_list().select_without_undo(1);
    show_tab(1);
    EXPECT_EQ(seen([this] { app->undo_stack().redo(); }), "1 " + saved) << "from the library and another row";
    EXPECT_EQ(seen([this] { app->menu_list().reorder({1, 0, 2}); }), "0 menu[B, *A, More] library[*L] save");
}

TEST_F(AppTest, UndoAndRedoComeByToolAndKey)
{
    store("A, More");
    open();
    press("New");
    editor->calls.clear();
    editor->offers = 0;
    const std::string with_new = state();
    for (const auto& [key, expected] : {std::pair{Qt::Key_Z, std::string("menu[*A, More] library[]")},
                                        {Qt::Key_Z, "menu[*A, More] library[]"},
                                        {Qt::Key_Y, with_new}}) {
        QTest::keyClick(app.get(), key, Qt::ControlModifier);
        EXPECT_EQ(state(), expected);
    }
    EXPECT_EQ(editor->offers, 2) << "once for each step that there was";
    EXPECT_EQ(editor->calls, "");
    const auto action_texts = [this] {
        std::string texts;
        for (const QAction* action : app->findChildren<QAction*>())
            if (!action->shortcut().isEmpty() && action->shortcutContext() == Qt::ApplicationShortcut)
                texts += action->text().toStdString() + (action->isEnabled() ? "+" : "-");
        return texts;
    };
    EXPECT_EQ(action_texts(), "Undo New Command+Redo-");
    app->undo_stack().undo();
    EXPECT_EQ(action_texts(), "Undo-Redo New Command+");
}

}
