#include "app/path_probe.h"

#include "platform/files.h"
#include "ui/text.h"

#include <QDebug>

#include <atomic>
#include <exception>
#include <mutex>
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
            look_at(path);
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

    void look_at(const QString& path) const
    {
        try {
            look(path);
        } catch (const std::exception& error) {
            // Who enters the path meets it again, and can tell of it.
            qDebug() << "A path can't be looked at:" << error.what();
        }
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
    auto run = std::make_shared<Run>(*this, ++runs_, command_index, paths);
    forget();
    run_ = std::move(run);
    try {
        std::thread([run = run_] { run->look_at_all(); }).detach();
    } catch (const std::exception& error) {
        qDebug() << "No thread to look at the paths:" << error.what();
        emit run_ended(runs_, QPrivateSignal());
    }
}

void PathProbe::tell(quint64 number)
{
    // An older run's end may still have been on its way.
    if (!run_ || run_->number != number)
        return;
    const std::shared_ptr<const Run> run = run_;
    forget();
    emit answered(run->command_index, run->paths);
}

void PathProbe::forget()
{
    if (const auto run = std::exchange(run_, nullptr))
        run->forget();
}
