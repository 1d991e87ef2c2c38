#include "preview/scenarios.h"

#include "bench_files.h"
#include "preview/app_window.h"
#include "preview/loop_watch.h"
#include "ui/editor/command_controller_base.h"
#include "ui/parts/item_parts_widget.h"
#include "ui/widgets/variable_size_text_edit.h"

#include <QElapsedTimer>
#include <QImage>

#include <algorithm>
#include <vector>

namespace {

constexpr int chips = 300;
constexpr double paint_target = 5, block_target = 16;
constexpr const char* scenario = "10,000 files, 300 chips";

std::string lines(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += std::string(78, 'x') + "\\n";
    return text;
}

/// A text part of so many lines, and others and names: most chips but not all differ.
std::string many_parts(int long_text)
{
    std::string parts = R"({"item-type":"text","text":")" + lines(long_text) + "\"}";
    for (int i = 1; i < chips; ++i)
        parts += i % 3 == 0 ? R"(,{"item-type":"name","name-type":"name-no-ext"})"
                            : R"(,{"item-type":"text","text":"; )" + std::to_string(i) + "\"}";
    return R"({"commandType":"Vellumark","name":"n","separator":"\n","fileParts":[)" + parts + "]}";
}

double median(std::vector<double> times)
{
    std::ranges::sort(times);
    return times[times.size() / 2];
}

double milliseconds(const QElapsedTimer& time)
{
    return static_cast<double>(time.nsecsElapsed()) / 1e6;
}

double painting(ItemPartsWidget& row)
{
    QImage image(row.size(), QImage::Format_ARGB32_Premultiplied);
    std::vector<double> times;
    for (int i = 0; i < 30; ++i) {
        QElapsedTimer time;
        time.start();
        row.render(&image);
        times.push_back(milliseconds(time));
    }
    return median(times);
}

VariableSizeTextEdit* visible_text_edit(const QWidget& window)
{
    const auto edits = window.findChildren<VariableSizeTextEdit*>();
    const auto shown = std::ranges::find_if(edits, &QWidget::isVisible);
    return shown == edits.end() ? nullptr : *shown;
}

/// Each stroke comes when the text of the one before is there.
void measure_typing(Report& report, AppWindow& window, const char* name, VariableSizeTextEdit& edit)
{
    edit.moveCursor(QTextCursor::End);
    LoopWatch watch;
    std::vector<double> keys;
    std::vector<double> texts;
    for (int stroke = 0; stroke < 30; ++stroke) {
        QElapsedTimer time;
        time.start();
        AppWindow::press(edit, Qt::Key_Y, QStringLiteral("y"));
        keys.push_back(milliseconds(time));
        window.wait_for_text();
        texts.push_back(milliseconds(time));
        run_until([&] { return !window.edit().is_filling(); });
    }
    const Block block = watch.longest();
    report.add(name, "the key itself, median", median(keys), block_target);
    report.add(name, "key stroke to text, median", median(texts));
    report.add(name, "longest block", block, block_target);
}

void measure_row(Report& report, AppWindow& window)
{
    window.app().current_editor()->set_expanded(true);
    auto& row = *window.app().findChild<ItemPartsWidget*>();
    run_until([&] { return row.width() >= row.sizeHint().width(); });
    report.add(scenario, "painting all chips, median", painting(row), paint_target);
    row.setFocus(Qt::BacktabFocusReason);
    AppWindow::press(row, Qt::Key_Home);
    run_until([&] { return visible_text_edit(window.app()) != nullptr; });
}

}

void measure_chips(Report& report)
{
    const BenchFiles files(10'000);
    {
        AppWindow window(many_parts(0));
        window.select(files.paths());
        measure_row(report, window);
        measure_typing(report, window, scenario, *visible_text_edit(window.app()));
    }
    AppWindow window(many_parts(12'500));
    window.select(std::vector(files.paths().begin(), files.paths().begin() + 1));
    measure_row(report, window);
    measure_typing(report, window, "a text part of 1 MB", *visible_text_edit(window.app()));
}
