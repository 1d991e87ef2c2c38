#include "app/stored_watch.h"

#include "platform/paths.h"
#include "store/mv_config.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QThread>

#include <chrono>
#include <exception>
#include <memory>
#include <utility>

namespace {

/// Between a change of the files and the look at them: programs write in several steps.
constexpr std::chrono::milliseconds time_to_rest{100};

/// At the end, with a watcher that a disk holds up.
constexpr std::chrono::milliseconds patience{200};

/// The file itself is another one after each save, though the watcher takes it for the one that it knows. Where there
/// is no folder for it yet, the one that it will be made in tells of that.
void watch_path(QFileSystemWatcher& watcher, const QString& file)
{
    QFileInfo folder(QFileInfo(file).path());
    while (!folder.exists() && !folder.isRoot())
        folder.setFile(folder.path());
    watcher.removePath(file);
    watcher.addPaths({file, folder.filePath()});
}

}

StoredWatch::StoredWatch(QObject& window, std::function<commands_file::Loaded()> load)
    : load_(std::move(load)), thread_(std::make_unique<QThread>()), watcher_(new QFileSystemWatcher)
{
    look_timer_.setSingleShot(true);
    look_timer_.setInterval(time_to_rest);
    connect(watcher_, &QFileSystemWatcher::directoryChanged, this, &StoredWatch::look_soon);
    connect(watcher_, &QFileSystemWatcher::fileChanged, this, &StoredWatch::look_soon);
    connect(this, &StoredWatch::watch_wanted, watcher_,
            [watcher = watcher_](const QString& file) { watch_path(*watcher, file); });
    connect(thread_.get(), &QThread::finished, watcher_, &QObject::deleteLater);
    connect(&look_timer_, &QTimer::timeout, this, &StoredWatch::look);
    watcher_->moveToThread(thread_.get());
    thread_->start();
    window.installEventFilter(this);
}

StoredWatch::~StoredWatch()
{
    thread_->quit();
    // One that hangs ends with the process.
    if (!thread_->wait(QDeadlineTimer(patience)))
        static_cast<void>(thread_.release());
}

void StoredWatch::watch_anew()
{
    const std::u16string path = MVConfig::get_global().path(FileKind::UserCommands);
    emit watch_wanted(QFile::decodeName(QByteArray::fromStdString(platform::to_host_path(path))), QPrivateSignal());
}

void StoredWatch::start()
{
    is_started_ = true;
    watch_anew();
}

void StoredWatch::file_written()
{
    is_outdated_ = is_reading_;
    watch_anew();
}

bool StoredWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        look_soon();
    return QObject::eventFilter(watched, event);
}

void StoredWatch::look()
{
    if (!is_started_)
        return;
    is_outdated_ = is_reading_;
    if (std::exchange(is_reading_, true))
        return;
    reading_ = std::make_unique<BackgroundValue<commands_file::Loaded>>(load_);
    connect(&reading_->job(), &BackgroundJob::done, this, &StoredWatch::take);
}

void StoredWatch::take()
{
    is_reading_ = false;
    watch_anew();
    if (std::exchange(is_outdated_, false)) {
        look_soon();
        return;
    }
    commands_file::Loaded loaded;
    try {
        loaded = reading_->take();
    } catch (const std::exception& error) {
        // Half a file, say: the next change or the next save finds out.
        qDebug() << "The commands that were changed can't be read:" << error.what();
        return;
    }
    emit read(loaded);
}
