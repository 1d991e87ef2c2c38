#include "preview/scenarios.h"

#include "bench_files.h"
#include "preview/loop_watch.h"
#include "preview/preview_window.h"

#include "engine/items/mv_items_set.h"
#include "ui/preview/preview_generator.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>

namespace {

class NoSelections final : public SelectionReaders
{
public:
    void add_reader(SelectionReader& /*reader*/) override {}

    void remove_reader(SelectionReader& /*reader*/) override {}

    void reading_ended() override {}

    bool is_selection_waiting() const override { return false; }
};

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

std::shared_ptr<VellumarkCommand> checksums()
{
    constexpr std::string_view json =
        R"({"name":"n","separator":"\n","fileParts":[{"item-type":"checksum","checksum-type":"crc32"}]})";
    return std::make_shared<VellumarkCommand>(boost::json::parse(json).as_object());
}

double seconds_of(const std::function<void()>& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double unwatched_run(const BenchFiles& files)
{
    const auto selection = std::make_shared<MVItemsSet>(files.paths());
    const auto command = checksums();
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
        generator.set_command(checksums());
        run_until([&] { return !generator.is_updating(); });
    });
}

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
