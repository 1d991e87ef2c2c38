#include "app/path_probe.h"

#include "app/path_looks.h"
#include "app/selection_paths.h"
#include "ui/text.h"

#include <QDebug>

#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

struct PathProbe::Run {
    Run(PathProbe& probe, quint64 number_of_run, int index)
        : number(number_of_run), command_index(index), receiver(&probe)
    {}

    /// On the run's thread.
    void end(std::shared_ptr<NewSelection> read)
    {
        const std::lock_guard lock(mutex);
        selection = std::move(read);
        if (receiver)
            emit receiver->run_ended(number, QPrivateSignal());
    }

    void forget()
    {
        const std::lock_guard lock(mutex);
        receiver = nullptr;
    }

    const quint64 number;
    const int command_index;
    std::mutex mutex;
    PathProbe* receiver; ///< null once the run is forgotten
    std::shared_ptr<NewSelection> selection;
};

PathProbe::PathProbe(Look look, std::chrono::milliseconds patience, QObject* parent)
    : QObject(parent), looks_(std::make_shared<PathLooks>(std::move(look), patience))
{
    connect(this, &PathProbe::run_ended, this, &PathProbe::tell, Qt::QueuedConnection);
}

PathProbe::~PathProbe()
{
    forget();
}

std::optional<platform::FileAttributes> PathProbe::read_attributes(const QString& path)
{
    return MVItemsSet::attributes_of(from_qstring(path));
}

void PathProbe::start(int command_index, const QStringList& paths)
{
    forget();
    run_ = std::make_shared<Run>(*this, ++runs_, command_index);
    looks_->want(runs_);
    try {
        std::thread([run = run_, looks = looks_, paths] {
            run->end(select_paths(paths, looks->answers_of(run->number, paths)));
        }).detach();
    } catch (const std::system_error& error) {
        qDebug() << "No thread to look at the paths:" << error.what();
        run_->end(select_paths(paths, std::vector<PathAnswer>(static_cast<std::size_t>(paths.size()))));
    }
}

void PathProbe::tell(quint64 number)
{
    // An older run's end may still have been on its way.
    if (!run_ || run_->number != number)
        return;
    const std::shared_ptr<const Run> run = run_;
    forget();
    emit answered(run->command_index, run->selection);
}

void PathProbe::forget()
{
    looks_->want(0);
    if (const auto run = std::exchange(run_, nullptr))
        run->forget();
}
