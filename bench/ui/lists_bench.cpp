#include "engine/commands/vellumark_command.h"
#include "fake_app.h"
#include "platform/known_folders.h"
#include "store/commands_file.h"
#include "store/mv_config.h"
#include "ui/lists/commands_list_model.h"
#include "ui/lists/commands_list_widget.h"
#include "ui/lists/commands_selection_model.h"
#include "ui/lists/commands_table_view.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMimeData>
#include <QScrollBar>

#include <algorithm>
#include <ctime>
#include <memory>

namespace {

constexpr int commands = 10'000;

/// The default commands again and again, in a window as tall as a large screen.
class Window
{
public:
    Window()
    {
        MVConfigLive::install(platform::program_folder());
        const StoredCommands defaults = commands_file::load_defaults();
        CommandList list;
        while (static_cast<int>(list.size()) < commands)
            list.push_back(defaults.menu[list.size() % defaults.menu.size()]->clone());
        app.menu.model().set_saved_commands(std::move(list));
        app.menu.select_without_undo(0);
        widget.resize(400, 2000);
        widget.show();
        QApplication::processEvents();
    }

    void paint() { widget.view().viewport()->repaint(); }

    void scroll_to_middle() { widget.view().scrollTo(app.menu.model().index(commands / 2, 0)); }

    FakeApp app;
    CommandsListWidget widget{app, app.menu, false};
};

/// Milliseconds of processor time, which other work on the machine doesn't lengthen.
template <typename Act>
double time_of(Act act)
{
    const std::clock_t start = std::clock();
    act();
    return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Runs `act` again and again and tells its longest run beside the mean.
template <typename Act>
void measure(benchmark::State& state, Act act)
{
    double worst = 0;
    while (state.KeepRunning())
        worst = std::max(worst, time_of(act));
    state.counters["worst_ms"] = worst;
}

void list_scroll(benchmark::State& state)
{
    Window window;
    QScrollBar& bar = *window.widget.view().verticalScrollBar();
    measure(state, [&] {
        bar.setValue((bar.value() + bar.pageStep()) % bar.maximum());
        window.paint();
    });
}

/// A selection that no filter lets pass, so that each command has to look at all of it.
void list_recolour(benchmark::State& state)
{
    Window window;
    for (int i = 0; i < 100'000; ++i)
        window.app.items->add_path(u"C:\\tmp");
    ItemFilter filter;
    filter.set_filter_mode(ItemFilter::Mode::Regex);
    filter.set_filter_pattern(u"(png|jpe?g)[0-9]+$");
    for (const auto& command : window.app.menu.commands())
        if (auto* vellumark = dynamic_cast<VellumarkCommand*>(command.get())) {
            vellumark->set_show(false, ShowRule::AtLeastOneItem);
            vellumark->set_folder_filter(filter);
            vellumark->set_folder_filter_enabled(true);
        }
    window.scroll_to_middle();
    measure(state, [&] {
        window.app.menu.model().refresh_rows();
        window.paint();
    });
    double slice = 0;
    for (int i = 0; i < 100; ++i)
        slice = std::max(slice, time_of([] { QApplication::processEvents(); }));
    state.counters["worst_slice_ms"] = slice;
}

/// The first rows are dragged to the end and brought back.
void list_drag(benchmark::State& state)
{
    Window window;
    CommandsListModel& model = window.app.menu.model();
    QItemSelection half(model.index(0, 0), model.index(static_cast<int>(state.range(0)) - 1, 2));
    measure(state, [&] {
        window.app.menu.selection().select(half, QItemSelectionModel::ClearAndSelect);
        const std::unique_ptr<QMimeData> data(model.mimeData(window.app.menu.selection().selectedIndexes()));
        model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, {});
        window.paint();
        window.app.stack.undo();
        window.paint();
    });
}

void list_is_modified(benchmark::State& state)
{
    Window window;
    measure(state, [&] { benchmark::DoNotOptimize(window.app.menu.is_modified()); });
}

void list_rename_and_undo(benchmark::State& state)
{
    Window window;
    window.scroll_to_middle();
    measure(state, [&] {
        window.app.menu.rename(commands / 2, u"New", {});
        window.paint();
        window.app.stack.undo();
        window.paint();
    });
}

/// What the list does once its file is written.
void list_mark_saved(benchmark::State& state)
{
    Window window;
    measure(state, [&] {
        window.app.menu.model().mark_saved(window.app.menu.model().snapshot());
        window.paint();
    });
}

}

BENCHMARK(list_scroll)->Unit(benchmark::kMillisecond);
BENCHMARK(list_recolour)->Unit(benchmark::kMillisecond);
BENCHMARK(list_drag)->Arg(1)->Arg(commands / 2)->Unit(benchmark::kMillisecond);
BENCHMARK(list_is_modified)->Unit(benchmark::kMillisecond);
BENCHMARK(list_rename_and_undo)->Unit(benchmark::kMillisecond);
BENCHMARK(list_mark_saved)->Unit(benchmark::kMillisecond);
