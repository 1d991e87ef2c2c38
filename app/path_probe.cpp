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
    Run(PathProbe& probe, Look look_at, int index, QStringList selected)
        : look(std::move(look_at)), command_index(index), paths(std::move(selected)), receiver(&probe)
    {}

    /// On the run's thread.
    void look_at_all(const std::shared_ptr<Run>& self)
    {
        for (const QString& path : paths) {
            if (is_forgotten)
                return;
            look(path);
        }
        const std::lock_guard lock(mutex);
        if (receiver)
            QMetaObject::invokeMethod(
                receiver, [self] { self->tell(); }, Qt::QueuedConnection);
    }

    /// On the main thread, where nothing forgets it meanwhile.
    void tell() const
    {
        if (!is_forgotten)
            emit receiver->answered(command_index, paths);
    }

    void forget()
    {
        is_forgotten = true;
        const std::lock_guard lock(mutex);
        receiver = nullptr;
    }

    const Look look;
    const int command_index;
    const QStringList paths;
    std::atomic<bool> is_forgotten = false;
    std::mutex mutex;
    PathProbe* receiver; ///< null once the run is forgotten
};

PathProbe::PathProbe(Look look, QObject* parent) : QObject(parent), look_(std::move(look)) {}

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
    run_ = std::make_shared<Run>(*this, look_, command_index, paths);
    try {
        std::thread([run = run_] { run->look_at_all(run); }).detach();
    } catch (const std::system_error& error) {
        qDebug() << "No thread to look at the paths:" << error.what();
        run_->tell();
    }
}

void PathProbe::forget()
{
    if (run_)
        run_->forget();
}
