#include "list_fixture.h"
#include "support/becomes.h"
#include "support/temp_folder.h"
#include "ui/colours.h"
#include "ui/lists/commands_comparison.h"

#include <QElapsedTimer>
#include <QFont>
#include <QIcon>

#include <tuple>

namespace {

using CommandsListRows = ListFixture;

/// The columns' texts, tool tips and fonts, as one line.
std::string row_text(const CommandsListModel& model, int row)
{
    const auto cell = [&](int column, int role) { return model.index(row, column).data(role); };
    QStringList parts{cell(0, Qt::DecorationRole).value<QIcon>().isNull() ? "-" : "icon",
                      cell(0, Qt::ToolTipRole).toString(),
                      cell(1, Qt::DisplayRole).toString(),
                      cell(1, Qt::EditRole).toString(),
                      cell(1, Qt::ToolTipRole).toString(),
                      cell(1, Qt::FontRole).value<QFont>().italic() ? "italic" : "upright",
                      cell(1, Qt::AccessibleTextRole).toString()};
    return parts.join(" | ").toStdString();
}

TEST_F(CommandsListRows, TextsAndMarks)
{
    CommandsListModel& model = app.menu.model();
    model.set_saved_commands(commands_named({"A", "", "=Many", "="}));
    app.menu.commands()[2]->set_name(u"More");
    CommandList list = app.menu.commands();
    list.push_back(commands_named({"L"}).front());
    list.back()->set_from_previous_session(true);
    app.menu.set_commands(list);
    app.items->add_path(TempFolder().make_folder(""));

    const std::vector<std::string> rows{
        "- |  | A | A | Vellumark Stored Command | upright | A",
        "- |  | Unnamed |  | Vellumark Stored Command | italic | Unnamed",
        "icon | This command has unsaved changes | More | More | Built-in Command: Multi Rename | upright | "
        "More, unsaved changes, not shown for this selection",
        "- |  | Multi Rename |  | Built-in Command: Multi Rename | italic | "
        "Multi Rename, not shown for this selection",
        "icon | This command has changes from a previous session | L (uncommitted changes) | L | "
        "Vellumark Stored Command | upright | L (uncommitted changes)",
    };
    for (std::size_t row = 0; row < rows.size(); ++row)
        EXPECT_EQ(row_text(model, static_cast<int>(row)), rows[row]);
    EXPECT_NE(model.index(2, 0).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage(),
              model.index(4, 0).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage());
}

TEST_F(CommandsListRows, FlagsAndMenuButton)
{
    const CommandsListModel& model = app.menu.model();
    const Qt::ItemFlags mark = model.flags(model.index(0, 0));
    EXPECT_TRUE(mark.testFlag(Qt::ItemIsDragEnabled));
    EXPECT_FALSE(mark.testAnyFlags(Qt::ItemIsEditable | Qt::ItemIsDropEnabled));
    EXPECT_EQ(model.flags(model.index(0, 1)), mark | Qt::ItemIsEditable);
    EXPECT_EQ(model.flags({}), Qt::ItemIsDropEnabled);
    const QModelIndex button = model.index(0, CommandsListModel::MenuColumn);
    EXPECT_EQ(button.data().toString(), u"\u22EF");
    EXPECT_FALSE(button.data(Qt::AccessibleTextRole).toString().isEmpty());
}

std::vector<QColor> colours_of(const CommandsListModel& model)
{
    std::vector<QColor> colours;
    for (int row = 0; row < model.rowCount(); ++row) {
        colours.push_back(model.index(row, 0).data(Qt::ForegroundRole).value<QColor>());
        for (const int column : {1, 2})
            EXPECT_EQ(model.index(row, column).data(Qt::ForegroundRole).value<QColor>(), colours.back());
    }
    return colours;
}

TEST_F(CommandsListRows, ColoursFollowTheSelection)
{
    app.menu.set_commands(commands_named({"A", "", "=Many"}));
    for (const auto& command : app.menu.commands())
        if (auto* vellumark = dynamic_cast<VellumarkCommand*>(command.get()))
            vellumark->set_show(false, ShowRule::MoreThanOneItem);
    const std::vector<QColor> shown{colours::file_name_command_shown(), colours::file_name_command_shown_nameless(),
                                    colours::builtin_command_shown()};
    const std::vector<QColor> hidden{colours::file_name_command_not_shown(), colours::file_name_command_not_shown(),
                                     colours::builtin_command_not_shown()};
    const TempFolder folder;
    EXPECT_EQ(colours_of(app.menu.model()), shown) << "nothing selected";
    app.items->add_path(folder.write("a"));
    EXPECT_EQ(colours_of(app.menu.model()), hidden);
    app.items->add_path(folder.write("b"));
    EXPECT_EQ(colours_of(app.menu.model()), shown);
}

TEST_F(CommandsListRows, SlowFiltersAreAnsweredLater)
{
    const TempFolder folder;
    const std::u16string path = folder.write("image.png");
    for (int i = 0; i < 20'000; ++i)
        app.items->add_path(path);
    app.menu.set_commands(commands_named({"A", "B", "C"}));
    const auto set_filter = [&](int row, const char16_t* pattern) {
        ItemFilter filter;
        filter.set_filter_mode(ItemFilter::Mode::Regex);
        filter.set_filter_pattern(pattern);
        auto& command = dynamic_cast<VellumarkCommand&>(*app.menu.command_at(row));
        command.set_file_filter(filter);
        command.set_file_filter_enabled(true);
        app.menu.command_changed(command);
    };
    for (const int row : {0, 1})
        set_filter(row, u"(j|J)(p|P)e?g$");
    const QColor shown = colours::file_name_command_shown(), hidden = colours::file_name_command_not_shown();
    EXPECT_EQ(colours_of(app.menu.model()), (std::vector{shown, shown, shown}));
    EXPECT_TRUE(becomes([&] { return colours_of(app.menu.model()) == std::vector{hidden, hidden, shown}; }));
    set_filter(0, u"png");
    EXPECT_EQ(colours_of(app.menu.model()), (std::vector{shown, hidden, shown})) << "asked anew after a change";
    app.items->reset();
    app.items->add_path(folder.write("image.jpg"));
    app.menu.model().refresh_rows();
    EXPECT_TRUE(becomes([&] {
        return colours_of(app.menu.model()) == std::vector{hidden, shown, shown};
    })) << "and for another selection";
}

TEST_F(CommandsListRows, OneRunawayFilterIsAllThatAPaintWaitsFor)
{
    const TempFolder folder;
    app.items->add_path(folder.write(std::string(40, 'a') + "!"));
    QStringList names;
    for (int i = 0; i < 40; ++i)
        names << QString::number(i);
    app.menu.set_commands(commands_named(names));
    ItemFilter filter;
    filter.set_filter_mode(ItemFilter::Mode::Regex);
    filter.set_filter_pattern(u"^(a+)+$");
    for (const auto& command : app.menu.commands()) {
        dynamic_cast<VellumarkCommand&>(*command).set_file_filter(filter);
        dynamic_cast<VellumarkCommand&>(*command).set_file_filter_enabled(true);
    }
    QElapsedTimer timer;
    timer.start();
    (void)dynamic_cast<VellumarkCommand&>(*app.menu.command_at(0)).passes_filter(*app.items->items().front());
    const qint64 one = timer.nsecsElapsed();
    timer.restart();
    (void)colours_of(app.menu.model());
    EXPECT_LT(timer.nsecsElapsed(), one * 15) << one;
}

TEST(CommandsComparison, LeavesOutTheLastSession)
{
    // "~" before a name: from the last session.
    const auto marked = [](const QStringList& names) {
        CommandList commands;
        for (QString name : names) {
            commands.push_back(commands_named({name.remove('~')}).front());
            commands.back()->set_from_previous_session(names[qsizetype(commands.size()) - 1].startsWith('~'));
        }
        return commands;
    };

    using Row = std::tuple<QStringList, QStringList, bool>;
    for (const auto& [left, right, same] :
         {Row{{}, {}, true}, Row{{"A", "B"}, {"A", "B"}, true}, Row{{"A", "B"}, {"B", "A"}, false},
          Row{{"A", "B"}, {"A"}, false}, Row{{"A"}, {"A", "B"}, false}, Row{{"~A", "B", "~C"}, {"B"}, true},
          Row{{"B"}, {"B", "~C"}, true}, Row{{"A", "~B"}, {"A", "B"}, false}})
        EXPECT_EQ(same_commands(marked(left), marked(right)), same) << left.join(' ').toStdString();
}

}
