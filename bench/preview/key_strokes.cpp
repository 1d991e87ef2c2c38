#include "preview/scenarios.h"

#include "bench_files.h"
#include "preview/app_window.h"
#include "preview/loop_watch.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <vector>

namespace {

constexpr double text_target = 100, block_target = 16;
constexpr const char* scenario = "10,000 files, name path size date";

constexpr std::string_view name_path_size_date =
    R"({"commandType":"Vellumark","name":"n","separator":"\n","fileParts":[
    {"item-type":"name","name-type":"full-name"},{"item-type":"text","text":"\t"},
    {"item-type":"path","path-type":"full-path","separator-text":"\\"},{"item-type":"text","text":"\t"},
    {"item-type":"size","size-format":"auto"},{"item-type":"text","text":"\t"},
    {"item-type":"date","dateType":"modified","dateFormat":"iso-date-time","addLeadingZeros":true}]})";

std::u16string separator(std::size_t stroke)
{
    return u"\n" + std::u16string(stroke, u'-');
}

/// Each stroke comes when all of the text of the one before is there.
void measure_single_strokes(Report& report, AppWindow& window)
{
    LoopWatch watch;
    std::vector<double> times;
    for (std::size_t stroke = 1; stroke <= 30; ++stroke) {
        QElapsedTimer time;
        time.start();
        window.type(separator(stroke));
        window.wait_for_text();
        times.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
        run_until([&] { return !window.edit().is_filling(); });
    }
    const Block block = watch.longest();
    std::ranges::sort(times);
    report.add(scenario, "key stroke to text, median", times[times.size() / 2], text_target);
    report.add(scenario, "key stroke to text, slowest", times.back(), text_target);
    report.add(scenario, "longest block", block, block_target);
    report.check(scenario, "the text is the whole one", window.edit().text().count(separator(30)) == 9'999);
}

void measure_burst(Report& report, AppWindow& window)
{
    constexpr std::size_t last = 100;
    LoopWatch watch;
    QElapsedTimer time;
    for (std::size_t stroke = 1; stroke <= last; ++stroke) {
        time.start();
        window.type(separator(stroke));
        QCoreApplication::processEvents();
    }
    window.wait_for_text();
    report.add("100 key strokes in a row", "last one to text", static_cast<double>(time.nsecsElapsed()) / 1e6,
               text_target);
    run_until([&] { return !window.edit().is_filling(); });
    report.add("100 key strokes in a row", "longest block", watch.longest(), block_target);
    report.check("100 key strokes in a row", "the text is the last one's",
                 window.edit().text().count(separator(last)) == 9'999);
}

}

void measure_key_strokes(Report& report)
{
    const BenchFiles files(10'000);
    AppWindow window(name_path_size_date);
    window.select(files.paths());
    measure_single_strokes(report, window);
    measure_burst(report, window);
}
