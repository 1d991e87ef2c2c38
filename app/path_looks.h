#pragma once

#include "app/path_answer.h"
#include "app/path_queue.h"

#include <QStringList>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

/// Looks at the paths of one selection side by side, on a few threads. Where paths keep these waiting more are added,
/// 64 at the most in all; a path that is being asked already, perhaps for an earlier selection, isn't asked a second
/// time but shares the answer. Nobody waits for the threads, and this lives as long as they do.
///
/// Each path costs its look and a comparison with those that are being asked, so that the time grows with their
/// number, divided by that of the machine's processors.
class PathLooks final : public std::enable_shared_from_this<PathLooks>
{
public:
    using Attributes = std::optional<platform::FileAttributes>;

    /// Looks at one path; called on any thread, may take for ever. A std::exception counts as unreadable attributes.
    using Look = std::function<Attributes(const QString& path)>;

    /// A path has so long to answer, from when it is asked.
    PathLooks(Look look, std::chrono::milliseconds patience);

    /// Says which selection is wanted: the answers for any other are given up. Never waits.
    void want(quint64 selection) { wanted_ = selection; }

    /// Looks at a selection's paths, on a thread that may wait. The answers come back in the order of the paths when
    /// all are there or have had their time, or soon after another selection is wanted. Paths for which no thread was
    /// left, because so many others keep silent, count as silent; those in the same folder as a silent one are asked
    /// last.
    std::vector<PathAnswer> answers_of(quint64 selection, const QStringList& paths);

private:
    using Clock = std::chrono::steady_clock;

    /// The paths of one selection.
    struct Round;

    /// Who gets the answer of a path.
    struct Asker {
        std::shared_ptr<Round> round;
        std::size_t index = 0;
    };

    /// A thread and what it is at.
    struct Worker {
        std::shared_ptr<Round> round;
        PathQueue::Range rest;     ///< of the round, for this thread to ask next
        QString path;              ///< that is being asked
        std::vector<Asker> askers; ///< of the path; empty when none is being asked
        Clock::time_point asked_at, deadline;
    };

    using Workers = std::list<Worker>;

    /// After that a path counts as silent until it answers.
    std::chrono::milliseconds step() const { return patience_ / 100; }

    bool is_over(const Round& round) const;
    void start(Round& round);
    bool go_on(Round& round, Clock::duration without_answer);
    void note_silent_folders(Round& round) const;
    bool is_slow(QStringView folder) const;
    void add_workers(const Round& round, std::size_t number);
    void start_worker();

    void work(Workers::iterator worker);
    bool take_next(Worker& worker);
    bool ask(Worker& worker, std::size_t index);
    bool shares_look(const Asker& asker);
    Attributes look_at(const QString& path) const;
    void tell(Worker& worker, const Attributes& attributes);

    const Look look_;
    const std::chrono::milliseconds patience_;
    std::atomic<quint64> wanted_ = 0;
    std::mutex mutex_; ///< guards the following and what they lead to
    std::condition_variable changed_;
    std::shared_ptr<Round> round_; ///< null when none is in progress
    Workers workers_;
    std::map<QString, Clock::time_point> last_answers_; ///< from each folder, since the round began
};
