#include "preview/scenarios.h"

#include "bench_files.h"
#include "preview/app_window.h"
#include "preview/loop_watch.h"
#include "ui/editor/command_controller_base.h"
#include "ui/text.h"
#include "ui/widgets/variable_size_text_edit.h"

#include <QElapsedTimer>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

constexpr double target = 16;
constexpr const char* scenario = "10,000 files, 50 chips, 100 presets";

std::string many_parts()
{
    std::string parts = R"({"item-type":"name","name-type":"full-name"})";
    for (int i = 1; i < 50; ++i)
        parts += R"(,{"item-type":"text","text":"; )" + std::to_string(i) + "\"}";
    return R"({"commandType":"Vellumark","name":"n","separator":"\n","fileParts":[)" + parts + "]}";
}

Presets::List many_presets()
{
    Presets::List presets(100);
    for (std::size_t i = 0; i < presets.size(); ++i) {
        presets[i].make_new_uuid();
        presets[i].name = u"Preset " + from_qstring(QString::number(i));
        presets[i].set_extensions(u"jpg;png;gif");
    }
    return presets;
}

/// What the main thread does at once, and the longest that it does without a break until the text is there.
void measure(Report& report, AppWindow& window, const char* name, const std::function<void(int)>& act)
{
    LoopWatch watch;
    std::vector<double> times;
    for (int i = 0; i < 30; ++i) {
        QElapsedTimer time;
        time.start();
        act(i);
        times.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
        window.wait_for_text();
        run_until([&] { return !window.edit().is_filling(); });
    }
    const Block block = watch.longest();
    std::ranges::sort(times);
    report.add(scenario, (std::string(name) + ", median").c_str(), times[times.size() / 2], target);
    report.add(scenario, (std::string(name) + ", longest block").c_str(), block, target);
}

}

void measure_pane(Report& report)
{
    const BenchFiles files(10'000);
    AppWindow window(many_parts());
    window.app().presets().set_both(many_presets());
    window.app().current_editor()->set_expanded(true);
    window.select(files.paths());
    measure(report, window, "another row", [&](int i) { window.app().menu_list().select(1 - i % 2); });
    window.app().menu_list().select(0);
    window.wait_for_text();
    for (VariableSizeTextEdit* box : window.app().findChildren<VariableSizeTextEdit*>()) {
        const QString name = box->accessibleName();
        if (!name.isEmpty() && box->isVisible())
            measure(report, window, ("key in " + name.toStdString()).c_str(),
                    [&](int) { AppWindow::press(*box, Qt::Key_Y, QStringLiteral("y")); });
    }
}
