#include "preview/scenarios.h"

#include "bench_files.h"
#include "preview/app_window.h"
#include "preview/loop_watch.h"
#include "ui/text.h"

#include <QElapsedTimer>

#include <algorithm>

namespace {

constexpr double block_target = 16;
constexpr const char* scenario = "100,000 files selected";

/// Of which the preview has next to nothing to do.
constexpr std::string_view one_letter =
    R"({"commandType":"Vellumark","name":"n","separator":"","startText":"x","fileParts":[]})";

}

void measure_selections(Report& report)
{
    const BenchFiles files(100'000);
    QStringList paths;
    for (const std::u16string& path : files.paths())
        paths += to_qstring(path);
    const QStringList one_less = paths.mid(1);
    AppWindow window(one_letter);
    window.select(one_less);
    LoopWatch watch;
    double slowest = 0;
    for (int round = 0; round < 10; ++round) {
        QElapsedTimer time;
        time.start();
        window.select(round % 2 == 0 ? paths : one_less);
        slowest = std::max(slowest, static_cast<double>(time.nsecsElapsed()) / 1e6);
    }
    report.add(scenario, "arrival to text, slowest", slowest);
    report.add(scenario, "longest block", watch.longest(), block_target);
}
