#include "preview/scenarios.h"

#include "bench_files.h"
#include "preview/loop_watch.h"
#include "preview/preview_window.h"

#include "engine/items/mv_items_set.h"
#include "ui/preview/preview_generator.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <vector>

namespace {

class NoSelections final : public SelectionReaders
{
public:
    void add_reader(SelectionReader& /*reader*/) override {}

    void remove_reader(SelectionReader& /*reader*/) override {}

    void reading_ended() override {}

    bool is_selection_waiting() const override { return false; }
};

std::shared_ptr<VellumarkCommand> command_of(std::string_view json)
{
    return std::make_shared<VellumarkCommand>(boost::json::parse(json).as_object());
}

constexpr std::string_view name_path_size_date = R"({"name":"n","separator":"\n","fileParts":[
    {"item-type":"name","name-type":"full-name"},{"item-type":"text","text":"\t"},
    {"item-type":"path","path-type":"full-path","separator-text":"\\"},{"item-type":"text","text":"\t"},
    {"item-type":"size","size-format":"auto"},{"item-type":"text","text":"\t"},
    {"item-type":"date","dateType":"modified","dateFormat":"iso-date-time","addLeadingZeros":true}]})";

class NoWatcher final : public VellumarkWatcher
{
public:
    void text_report(std::u16string /*text*/, std::uint32_t id) override
    {
        const std::lock_guard lock(mutex_);
        last_ = id;
        changed_.notify_all();
    }

    void wait_for(std::uint32_t id)
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return last_ == id; });
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::uint32_t last_ = 0;
};

constexpr std::string_view checksums =
    R"({"name":"n","separator":"\n","fileParts":[{"item-type":"checksum","checksum-type":"crc32"}]})";

double seconds_of(const std::function<void()>& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double unwatched_run(const BenchFiles& files)
{
    const auto selection = std::make_shared<MVItemsSet>(files.paths());
    const auto command = command_of(checksums);
    NoWatcher watcher;
    VellumarkThread thread(watcher, selection);
    return seconds_of([&] {
        thread.request(command.get(), 1);
        watcher.wait_for(1);
    });
}

double watched_run(const BenchFiles& files)
{
    const auto selection = std::make_shared<MVItemsSet>(files.paths());
    PreviewWindow window;
    NoSelections readers;
    PreviewGenerator generator(selection, readers);
    QObject::connect(&generator, &PreviewGenerator::progress_changed, &window.widget(),
                     &ClipboardPreviewContainerWidget::show_progress);
    window.widget().show_updating();
    return seconds_of([&] {
        generator.set_command(command_of(checksums));
        run_until([&] { return !generator.is_updating(); });
    });
}

}

void measure_key_strokes(Report& report)
{
    const BenchFiles files(10'000);
    const auto selection = std::make_shared<MVItemsSet>(files.paths());
    PreviewWindow window;
    NoSelections readers;
    PreviewGenerator generator(selection, readers);
    auto& widget = window.widget();
    QObject::connect(&generator, &PreviewGenerator::text_updating, &widget,
                     &ClipboardPreviewContainerWidget::show_updating);
    QObject::connect(&generator, &PreviewGenerator::text_ready, &widget, &ClipboardPreviewContainerWidget::set_text);
    const auto command = command_of(name_path_size_date);
    LoopWatch watch;
    std::vector<double> times;
    Block longest_block;
    for (int stroke = 0; stroke < 30; ++stroke) {
        // The first one reads what is kept from then on.
        if (stroke == 1)
            longest_block = watch.longest(), watch.restart();
        command->set_separator(u"\n" + std::u16string(static_cast<std::size_t>(stroke), u'-'));
        times.push_back(1e3 * seconds_of([&] {
                            generator.set_command(command);
                            run_until([&] { return !generator.is_updating(); });
                            window.wait_for_paint();
                        }));
        run_until([&] { return !window.edit().is_filling(); });
    }
    report.add("10,000 files, name path size date", "first key stroke to text", times.front(), 100);
    report.add("10,000 files, name path size date", "slowest other",
               *std::max_element(times.begin() + 1, times.end()), 100);
    report.add("10,000 files, name path size date", "longest block, first", longest_block, 16);
    report.add("10,000 files, name path size date", "longest block, others", watch.longest(), 16);
    report.check("10,000 files, name path size date", "the text is the whole one",
                 generator.text().count(u'\n') == 9'999);
}

void measure_progress(Report& report)
{
    const BenchFiles files(30'000);
    double unwatched = 1e9, watched = 1e9;
    for (int round = 0; round < 7; ++round) {
        unwatched = std::min(unwatched, unwatched_run(files));
        watched = std::min(watched, watched_run(files));
    }
    report.add("checksums of 30,000 empty files", "nobody looks", unwatched * 1e3);
    report.add("checksums of 30,000 empty files", "shown as they go", watched * 1e3, unwatched * 1.1e3);
}
