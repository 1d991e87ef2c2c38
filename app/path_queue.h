#pragma once

#include <QString>
#include <QStringList>

#include <cstddef>
#include <deque>
#include <optional>
#include <vector>

/// What a path in drive or server form begins with, up to its last backslash.
inline QStringView folder_of(const QString& path)
{
    return QStringView(path).left(path.lastIndexOf(u'\\') + 1);
}

/// The paths of a selection that have yet to be asked, by their indices. Those in folders that keep a thread waiting
/// are put off until the others have been asked. Not guarded.
class PathQueue
{
public:
    /// Paths for one thread to ask.
    struct Range {
        std::size_t begin = 0, end = 0;
    };

    explicit PathQueue(QStringList paths) : paths_(std::move(paths)) {}

    const QString& path(std::size_t index) const { return paths_[static_cast<qsizetype>(index)]; }

    /// Queues all paths, in so many ranges, so that one of each is asked though all paths of some keep silent.
    void share_out(std::size_t ranges);
    /// Queues what a thread can't go on with.
    void hand_back(Range& rest);
    void clear();

    std::size_t waiting_ranges() const { return waiting_.size(); }

    std::size_t put_off() const { return put_off_.size(); }

    /// The next path of the thread that has `rest` to ask, of another range when that is empty. Empty when only paths
    /// are left that were put off.
    std::optional<std::size_t> next(Range& rest);
    /// True when the path's folder is silent: it is put off then.
    bool puts_off(std::size_t index);
    /// A path that was put off. Empty when there is none, and until they are released.
    std::optional<std::size_t> next_put_off();

    /// Which folders are silent from now on: those of these paths.
    void set_silent(const std::vector<QString>& paths);
    /// Queues, when nothing else is queued, what was put off in folders that are no more silent. Where there is no
    /// such path `all` releases the others for good.
    void release_put_off(bool all);

    bool asks_put_off() const { return asks_put_off_; }

private:
    bool is_in_silent_folder(const QString& path) const;

    QStringList paths_;
    std::deque<Range> waiting_;
    std::deque<std::size_t> put_off_;
    std::vector<QString> silent_folders_;
    bool asks_put_off_ = false;
};
