// From the start of the process to the first painted window, with 200 commands: where the time goes. Starts itself
// again and again with the time in its arguments, and says the median of each step. Status 1 when the whole takes
// longer than its target, 2 when nothing was painted. Needs a display, such as xvfb-run's.

#include "app/mirvanta_app.h"
#include "app/program.h"
#include "platform/known_folders.h"
#include "store/commands_file.h"
#include "store/mv_config.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr std::size_t commands = 200;
constexpr int runs = 15;
constexpr double target = 300;

double now()
{
    // One clock for all processes.
    const auto since_boot = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(since_boot).count();
}

/// Prints how long each step took.
class Steps
{
public:
    explicit Steps(double start) : last_(start) {}

    void done(const char* step)
    {
        const double time = now();
        std::printf("%s\t%f\n", step, time - last_);
        last_ = time;
    }

private:
    double last_;
};

/// Ends the event loop when the window has been painted and its picture handed over.
class FirstPaint final : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
};

/// As the program's main, up to the picture.
int start_once(int argc, char* argv[], double start)
{
    Steps steps(start);
    steps.done("1 loading the program and its libraries");
    Program::prepare();
    QApplication application(argc, argv);
    steps.done("2 connecting to the display");
    const Program program(application);
    steps.done("3 look, icon, translation");
    MirvantaApp window;
    steps.done("4 reading the commands, making the window");
    window.show();
    steps.done("5 showing it");
    FirstPaint first_paint;
    window.installEventFilter(&first_paint);
    QApplication::exec();
    steps.done("6 painting it");
    Steps(start).done("7 all");
    if (window.menu_list().commands().size() != commands)
        return 2;
    const double before = now();
    commands_file::load();
    Steps(before).done("8 of step 4, reading the commands file");
    return 0;
}

void store_commands()
{
    MVConfigLive::install(platform::program_folder());
    const StoredCommands defaults = commands_file::load_defaults();
    CommandList menu;
    while (menu.size() < commands)
        for (const auto& command : defaults.menu)
            menu.push_back(command->clone());
    menu.resize(commands);
    commands_saving::write({.text = commands_saving::text_of({menu, {}, defaults.presets})});
}

/// Milliseconds by step.
std::map<std::string, std::vector<double>> measure()
{
    std::map<std::string, std::vector<double>> times;
    for (int run = 0; run <= runs; ++run) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), {QString::number(now(), 'f', 6)});
        process.waitForFinished();
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            return {};
        // The first run warms the caches.
        for (const QByteArray& line : process.readAllStandardOutput().trimmed().split('\n'))
            if (const auto fields = line.split('\t'); run > 0 && fields.size() == 2)
                times[fields[0].toStdString()].push_back(fields[1].toDouble());
    }
    return times;
}

double median(std::vector<double> times)
{
    std::ranges::sort(times);
    return times[times.size() / 2];
}

}

int main(int argc, char* argv[])
{
    if (argc == 2)
        return start_once(argc, argv, std::stod(argv[1]));
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, folder.path().toLocal8Bit());
    store_commands();
    const auto times = measure();
    const auto all = times.find("7 all");
    if (all == times.end()) {
        std::fputs("No window was painted.\n", stderr);
        return 2;
    }
    for (const auto& [step, values] : times)
        std::printf("%8.1f ms  %s\n", median(values), step.c_str() + 2);
    const bool met = median(all->second) <= target;
    std::printf("%s: at most %.0f ms with %zu commands\n", met ? "ok" : "MISSED", target, commands);
    return met ? 0 : 1;
}
