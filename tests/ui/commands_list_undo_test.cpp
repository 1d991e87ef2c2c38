#include "list_fixture.h"
#include "ui/lists/undo_move_command_between_lists.h"
#include "ui/undo/command_step.h"

#include <QMimeData>

#include <tuple>

namespace {

using CommandsListUndo = ListFixture;

/// Drops rows as a drag does.
bool drop(CommandsListModel& model, const QModelIndexList& indexes, int row)
{
    const std::unique_ptr<QMimeData> data(model.mimeData(indexes));
    return model.dropMimeData(data.get(), Qt::MoveAction, row, 0, {});
}

TEST_F(CommandsListUndo, Select)
{
    expect_step("Select Stored Command", "A B >C D ", [&] { app.menu.select(2); });
    for (const int row : {0, -1, 4})
        app.menu.select(row);
    EXPECT_TRUE(app.stack.canRedo()) << "what is current or missing pushes nothing";
}

TEST_F(CommandsListUndo, Delete)
{
    const std::vector<std::pair<std::vector<int>, std::string>> cases{{{0}, ">B C D Save"},
                                                                      {{3}, "A B >C Save"},
                                                                      {{0, 2}, "B >D Save"},
                                                                      {{3, 2}, "A >B Save"},
                                                                      {{1, 0, 3, 2}, "Save"}};
    for (const auto& [rows, after] : cases) {
        select_rows(rows);
        expect_step("Delete Command", after, [&] { app.menu.delete_selected(); });
    }
    app.menu.selection().clearSelection();
    const int steps = app.stack.index();
    app.menu.delete_selected();
    EXPECT_EQ(app.stack.index(), steps);
}

TEST_F(CommandsListUndo, RenameAndEditInPlace)
{
    const auto name_cell = [&](int row) { return app.menu.model().index(row, CommandsListModel::NameColumn); };
    app.menu.set_current_row(1);
    expect_step("Rename Stored Command", "A >New* C D Save", [&] { app.menu.rename(1, u"New", u"One"); });
    expect_step("Rename Stored Command", "A >B* C D Save", [&] { app.menu.rename(1, u"B", u"One"); });
    app.menu.rename(1, u"B", u"");
    EXPECT_FALSE(app.menu.model().setData(name_cell(1), "B"));
    EXPECT_TRUE(app.stack.canRedo()) << "nothing was new";

    app.menu.rename(1, u"B", u"One");
    expect_step("Rename Stored Command", "A >Unnamed* C D Save", [&] { app.menu.model().setData(name_cell(1), ""); });
    app.menu.model().setData(name_cell(1), "E");
    EXPECT_EQ(app.menu.current_command()->name1(), u"");
}

TEST_F(CommandsListUndo, CommitAndDiscard)
{
    auto from_last_session = commands_named({"L"}).front();
    from_last_session->set_from_previous_session(true);
    CommandList list = app.menu.commands();
    list.push_back(from_last_session);
    app.menu.set_commands(list);
    app.menu.set_current_row(4);
    EXPECT_EQ(menu_shown(), "A B C D >L (uncommitted changes)* ");
    expect_step("Commit Changes", "A B C D >L* Save", [&] { app.menu.commit(4); });
    app.menu.commit(0);
    EXPECT_TRUE(app.stack.canRedo());

    app.menu.set_current_row(1);
    auto& command = dynamic_cast<VellumarkCommand&>(*app.menu.current_command());
    command.set_separator(u"; ");
    expect_step("Discard Changes", "A >B C D L (uncommitted changes)* ", [&] { app.menu.discard(1); });
    EXPECT_EQ(command.separator(), u"; ");
    command.commit();
    app.stack.redo();
    EXPECT_EQ(command.separator(), u"") << "what was discarded first is discarded again";
}

TEST_F(CommandsListUndo, AStepInACommandBringsItToTheFront)
{
    const auto edited = std::dynamic_pointer_cast<VellumarkCommand>(app.library.command_at(0));
    edited->set_separator(u"; ");
    app.lists().activate(app.library);
    app.library.discard(0);
    std::string seen;
    QObject::connect(&app.steps(), &UndoSteps::ended, [&](const WrittenCommands& written) {
        seen += &app.lists().active() == &app.library ? "library " : "menu ";
        seen += std::to_string(app.lists().active().current_index());
        seen += written == WrittenCommands{edited} ? " written, " : ", ";
    });
    app.lists().activate(app.menu);
    app.menu.select_without_undo(2);
    app.stack.undo();
    app.lists().activate(app.menu);
    app.stack.redo();
    EXPECT_EQ(edited->separator(), u"");
    EXPECT_EQ(app.menu.current_index(), 2);

    app.library.set_commands({});
    app.library.set_current_row(-1);
    app.lists().activate(app.menu);
    app.stack.undo();
    EXPECT_EQ(edited->separator(), u"; ") << "a command that stands nowhere is written all the same";
    EXPECT_EQ(seen, "library 0 written, library 0 written, menu 2 written, ");
}

/// Types a separator.
class TypeSeparator final : public CommandStep
{
public:
    TypeSeparator(CommandLists& lists, const std::shared_ptr<MVCommandBase>& command, std::u16string text)
        : CommandStep(lists, command, "Type"), new_(std::move(text))
    {}

    int id() const override { return 1000; }

private:
    void write_old(MVCommandBase& command) override { dynamic_cast<VellumarkCommand&>(command).set_separator({}); }

    void write_new(MVCommandBase& command) override { dynamic_cast<VellumarkCommand&>(command).set_separator(new_); }

    bool join(const CommandStep& later) override
    {
        new_ = dynamic_cast<const TypeSeparator&>(later).new_;
        return true;
    }

    std::u16string new_;
};

TEST_F(CommandsListUndo, TypingIsOneStepACommand)
{
    for (const int row : {0, 1}) {
        const auto command = app.menu.command_at(row);
        app.menu.select_without_undo(row);
        for (const char16_t* typed : {u"a", u"ab", u"abc"})
            app.stack.push(new TypeSeparator(app.lists(), command, typed));
    }
    EXPECT_EQ(menu_shown(), "A* >B* C D Save");
    EXPECT_EQ(app.stack.count(), 2);
    app.stack.undo();
    EXPECT_EQ(menu_shown(), "A* >B C D Save");
    app.stack.undo();
    EXPECT_EQ(menu_shown(), ">A B C D ");
    app.stack.redo();
    EXPECT_EQ(dynamic_cast<VellumarkCommand&>(*app.menu.command_at(0)).separator(), u"abc");
}

TEST_F(CommandsListUndo, AStepThatThrowsLeavesNoneRunning)
{
    EXPECT_THROW(app.steps().run([] { throw std::runtime_error("full"); }), std::runtime_error);
    EXPECT_FALSE(app.steps().is_running());
}

TEST_F(CommandsListUndo, ReorderByDragging)
{
    CommandsListModel& model = app.menu.model();
    const std::vector<std::tuple<std::vector<int>, int, std::string>> cases{{{0}, 4, "B C D >A Save"},
                                                                            {{3}, 0, ">D A B C Save"},
                                                                            {{3, 1}, 0, ">B D A C Save"},
                                                                            {{0, 2}, -1, "B D A >C Save"},
                                                                            {{1, 3}, 1, "A B >D C Save"}};
    for (const auto& [rows, target, after] : cases) {
        select_rows(rows);
        expect_step("Undo Reorder Commands", after,
                    [&, to = target] { EXPECT_TRUE(drop(model, app.menu.selection().selectedIndexes(), to)); });
    }
    const QModelIndexList second{model.index(1, 0), model.index(1, 1), model.index(1, 2)};
    for (const int target : {1, 2})
        EXPECT_FALSE(drop(model, second, target)) << "stays where it is";
    QMimeData torn;
    torn.setData(model.mimeTypes().constFirst(), QByteArray("\0\0\0\3\0\0", 6));
    EXPECT_FALSE(model.dropMimeData(&torn, Qt::MoveAction, 0, 0, {}));
    EXPECT_TRUE(app.stack.canRedo());
}

TEST_F(CommandsListUndo, MoveBetweenLists)
{
    const CommandList menu = app.menu.commands();
    const CommandList library = app.library.commands();
    app.menu.set_current_row(3);
    expect_step("Move", "A B >C Save", [&] {
        app.stack.push(new UndoMoveCommandBetweenLists(app.lists(), {{menu[0], menu[1], menu[2]}, 2},
                                                       {{library[0], menu[3]}, 1}, "Move"));
        EXPECT_EQ(shown(library_widget), "X >D Save");
    });
    EXPECT_EQ(shown(library_widget), ">X ");
}

TEST_F(CommandsListUndo, StepsFromBeforeASave)
{
    app.menu.rename(0, u"E", u"");
    select_rows({1});
    app.menu.delete_selected();
    app.menu.model().mark_saved(app.menu.model().snapshot());
    EXPECT_EQ(menu_shown(), "E >C D ");
    app.stack.undo();
    EXPECT_EQ(menu_shown(), "E >B C D Save");
    app.stack.redo();
    EXPECT_EQ(menu_shown(), "E >C D ");

    auto from_last_session = commands_named({"L"}).front();
    from_last_session->set_from_previous_session(true);
    app.menu.set_commands({from_last_session});
    app.menu.model().mark_saved(app.menu.model().snapshot());
    app.menu.set_current_row(0);
    EXPECT_EQ(menu_shown(), ">L ") << "the file has it now";
}

}
