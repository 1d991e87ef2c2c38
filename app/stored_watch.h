#pragma once

#include "store/commands_file.h"
#include "ui/background_job.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class QFileSystemWatcher;
class QThread;

/// Reads the user's commands file anew when another program may have changed it: when the file or its folder changes,
/// and when the window is activated, since a disk of another machine tells nobody. Main thread only; no disk holds it
/// up.
class StoredWatch final : public QObject
{
    Q_OBJECT

public:
    /// Reads nothing before `start`. `load` is called on other threads, and for ever where a disk hangs.
    StoredWatch(QObject& window, std::function<commands_file::Loaded()> load);
    ~StoredWatch() override;

    void start();

    /// Reads the file once it has come to rest.
    void look_soon() { look_timer_.start(); }

    /// The program itself has written the file: what is being read is of no use.
    void file_written();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The file as it is now. Nothing comes of one that can't be read.
    void read(const commands_file::Loaded& loaded);

    /// For the watcher, on its thread.
    void watch_wanted(const QString& file, QPrivateSignal);

private:
    void watch_anew();
    void look();
    void take();

    const std::function<commands_file::Loaded()> load_;
    std::unique_ptr<QThread> thread_;
    QFileSystemWatcher* watcher_; ///< of `thread_`, for it looks at the disk
    QTimer look_timer_;           ///< runs from a change of the files until they have come to rest
    std::unique_ptr<BackgroundValue<commands_file::Loaded>> reading_; ///< the last one; null for none
    bool is_started_ = false;
    bool is_reading_ = false;
    bool is_outdated_ = false; ///< the file has changed since the reading began
};
