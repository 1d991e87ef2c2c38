#include "preview/scenarios.h"

#include "preview/loop_watch.h"
#include "preview/preview_window.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>

namespace {

constexpr double first_paint_target = 100, block_target = 50;

/// 20 MB of names in lines of 99 units and a line end.
QString many_lines(const QString& end)
{
    QString text;
    text.reserve(20'400'000);
    for (int line = 0; line < 200'000; ++line)
        text += QStringLiteral("%1 ").arg(line, 8).leftJustified(99, u'n') + end;
    return text;
}

QString one_line()
{
    return many_lines(QStringLiteral(";"));
}

Block scroll(PreviewWindow& window, QScrollBar& bar)
{
    LoopWatch watch;
    for (int step = 0; step <= 100; ++step) {
        bar.setValue(static_cast<int>(qint64{bar.maximum()} * (step * 37 % 101) / 100));
        window.wait_for_paint();
    }
    return watch.longest();
}

/// Long lines that are shown whole, in scripts that take longest to lay out.
QString long_lines(int lines, int units)
{
    const QString words = QStringLiteral("\u00c4pfel \u65e5\u672c \u0627\u0644\u0639 .jpeg, ");
    return (words.repeated(units / words.size()) + u'\n').repeated(lines);
}

Block resize(PreviewWindow& window)
{
    LoopWatch watch;
    for (const int width : {800, 1200, 1000}) {
        window.widget().resize(width, width - 300);
        window.wait_for_paint();
    }
    return watch.longest();
}

void measure(Report& report, const char* name, const QString& text)
{
    PreviewWindow window;
    LoopWatch watch;
    QElapsedTimer fill;
    fill.start();
    report.add(name, "first screenful", window.show_and_paint(text), first_paint_target);
    window.edit().selectAll();
    window.edit().copy();
    report.check(name, "copied whole while it comes", QGuiApplication::clipboard()->text() == text);
    watch.restart();
    run_until([&] { return !window.edit().is_filling(); });
    report.add(name, "longest block while it comes", watch.longest(), block_target);
    report.add(name, "all there after", static_cast<double>(fill.elapsed()));
    report.add(name, "scrolling down, longest block", scroll(window, *window.edit().verticalScrollBar()),
               block_target);
    report.add(name, "scrolling right, longest block", scroll(window, *window.edit().horizontalScrollBar()),
               block_target);
    report.add(name, "another size, longest block", resize(window), block_target);
    watch.restart();
    window.edit().selectAll();
    window.edit().copy();
    window.wait_for_paint();
    report.add(name, "select all and copy, block", watch.longest(), block_target);
    report.check(name, "copied whole", QGuiApplication::clipboard()->text() == text);
    watch.restart();
    report.add(name, "short text after it", window.show_and_paint(QStringLiteral("short")), first_paint_target);
    report.add(name, "short text after it, block", watch.longest(), block_target);
}

void replace_often(Report& report, const QString& text)
{
    PreviewWindow window;
    LoopWatch watch;
    for (int i = 0; i < 20; ++i) {
        window.show_and_paint(text);
        QElapsedTimer pause;
        pause.start();
        run_until([&] { return pause.elapsed() > 20; });
    }
    report.add("20 times 20 MB in a row", "longest block", watch.longest(), block_target);
}

}

void measure_big_texts(Report& report)
{
    measure(report, "200,000 lines, 20 MB", many_lines(QStringLiteral("\n")));
    measure(report, "200,000 lines, CR LF", many_lines(QStringLiteral("\r\n")));
    measure(report, "one line of 20 MB", one_line());
    measure(report, "one line of 25,000 units", long_lines(1, 25'000));
    measure(report, "200,000 lines, 24 of 1,500", long_lines(24, 1'500) + many_lines(QStringLiteral("\n")));
    replace_often(report, many_lines(QStringLiteral("\n")));
}
