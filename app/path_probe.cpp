#include "app/path_probe.h"

#include "platform/files.h"
#include "ui/text.h"

#include <QDebug>

#include <atomic>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

struct PathProbe::Run {
    Run(PathProbe& probe, quint64 number_of_run, int index, QStringList selected)
        : look(probe.look_), number(number_of_run), command_index(index), paths(std::move(selected)), receiver(&probe)
    {}

    /// On the run's thread.
    void look_at_all()
    {
        for (const QString& path : paths) {
            if (is_forgotten)
                return;
            look(path);
        }
        const std::lock_guard lock(mutex);
        if (receiver)
            emit receiver->run_ended(number, QPrivateSignal());
    }

    void forget()
    {
        is_forgotten = true;
        const std::lock_guard lock(mutex);
        receiver = nullptr;
    }

    const Look look;
    const quint64 number;
    const int command_index;
    const QStringList paths;
    std::atomic<bool> is_forgotten = false;
    std::mutex mutex;
    PathProbe* receiver; ///< null once the run is forgotten
};

PathProbe::PathProbe(Look look, QObject* parent) : QObject(parent), look_(std::move(look))
{
    connect(this, &PathProbe::run_ended, this, &PathProbe::tell, Qt::QueuedConnection);
}

PathProbe::~PathProbe()
{
    forget();
}

void PathProbe::read_attributes(const QString& path)
{
    platform::file_attributes(from_qstring(path));
}

void PathProbe::start(int command_index, const QStringList& paths)
{
    forget();
    run_ = std::make_shared<Run>(*this, ++runs_, command_index, paths);
    try {
        std::thread([run = run_] { run->look_at_all(); }).detach();
    } catch (const std::system_error& error) {
        qDebug() << "No thread to look at the paths:" << error.what();
        emit run_ended(runs_, QPrivateSignal());
    }
}

void PathProbe::tell(quint64 number)
{
    // An older run's end may still have been on its way.
    if (number != runs_)
        return;
    told_ = number;
    emit answered(run_->command_index, run_->paths);
}

void PathProbe::forget()
{
    if (run_)
        run_->forget();
}
