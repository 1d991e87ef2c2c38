#pragma once

#include "engine/commands/vellumark_command.h"
#include "fake_app.h"
#include "store/mv_command_builtin.h"
#include "support/test_editor.h"
#include "ui/lists/commands_list_model.h"
#include "ui/lists/commands_list_widget.h"
#include "ui/lists/commands_selection_model.h"
#include "ui/lists/commands_table_view.h"
#include "ui/text.h"

#include <gtest/gtest.h>

/// A list of file-name commands with these names; "=NAME" makes a built-in one.
inline CommandList commands_named(const QStringList& names)
{
    CommandList list;
    for (const QString& name : names)
        if (name.startsWith('='))
            list.push_back(std::make_shared<MVCommandBuiltin>(CommandType::MultiRename, from_qstring(name.mid(1))));
        else
            list.push_back(std::make_shared<VellumarkCommand>(from_qstring(name)));
    return list;
}

/// Both lists in their widgets, the menu list with the commands A to D.
class ListFixture : public testing::Test
{
protected:
    ListFixture()
    {
        app.menu.model().set_saved_commands(commands_named({"A", "B", "C", "D"}));
        app.library.model().set_saved_commands(commands_named({"X"}));
        app.menu.select_without_undo(0);
        app.library.select_without_undo(0);
        widget.resize(300, 300);
    }

    /// The rows as the view shows them, ">" before the current one, "+" before others that are selected, "*" after
    /// marked ones; "Save" when the list is modified.
    static std::string shown(const CommandsListWidget& list)
    {
        std::string text;
        const CommandsListModel& model = list.controller().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            const bool selected = list.view().selectionModel()->isRowSelected(row);
            text += list.view().currentIndex().row() == row ? selected ? ">" : "?" : selected ? "+" : "";
            text += model.index(row, CommandsListModel::NameColumn).data().toString().toStdString();
            text += model.index(row, CommandsListModel::MarkColumn).data(Qt::ToolTipRole).isValid() ? "* " : " ";
        }
        const int current = list.controller().current_index();
        EXPECT_EQ(current, list.view().currentIndex().row());
        EXPECT_EQ(list.controller().current_command(), list.controller().command_at(current));
        return text + (list.is_modified() ? "Save" : "");
    }

    std::string menu_shown() const { return shown(widget); }

    void select_rows(const std::vector<int>& rows) const
    {
        for (const int row : rows)
            app.menu.selection().setCurrentIndex(
                app.menu.model().index(row, CommandsListModel::NameColumn),
                QItemSelectionModel::Rows |
                    (row == rows.front() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Select));
    }

    /// Expects the states before, after, and after undo and redo of whatever `act` does in one step. Of several
    /// selected rows undo selects the current one alone.
    template <typename Act>
    void expect_step(const std::string& text, const std::string& after, Act act)
    {
        std::string before = menu_shown();
        std::erase(before, '+');
        const int steps = app.stack.index();
        act();
        EXPECT_EQ(menu_shown(), after) << text;
        ASSERT_EQ(app.stack.index(), steps + 1) << text;
        EXPECT_EQ(app.stack.undoText().toStdString(), text);
        app.stack.undo();
        EXPECT_EQ(menu_shown(), before) << "undone: " << text;
        app.stack.redo();
        EXPECT_EQ(menu_shown(), after) << "redone: " << text;
        app.stack.undo();
    }

    FakeApp app;
    CommandsListWidget widget{app, app.menu, false};
    CommandsListWidget library_widget{app, app.library, true};
};
