#include "app/path_looks.h"

#include <QDebug>

#include <algorithm>
#include <exception>
#include <thread>
#include <utility>

namespace {

constexpr std::size_t most_threads = 64;
/// Where threads run short, those that are left are for paths in other folders.
constexpr std::size_t most_for_put_off = most_threads / 2;

/// More than that would stand in each other's way while all paths answer.
std::size_t first_threads()
{
    return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 2, 8);
}

}

struct PathLooks::Round {
    Round(quint64 number, const QStringList& paths)
        : selection(number), queue(paths), missing(static_cast<std::size_t>(paths.size())), answers(missing)
    {}

    const quint64 selection;
    PathQueue queue;
    std::size_t missing; ///< answers
    std::vector<PathAnswer> answers;
    std::size_t most_workers = 0; ///< while it lasts, those that earlier paths hold included
    bool is_closed = false;
};

PathLooks::PathLooks(Look look, std::chrono::milliseconds patience) : look_(std::move(look)), patience_(patience) {}

bool PathLooks::is_over(const Round& round) const
{
    return round.is_closed || round.selection != wanted_;
}

std::vector<PathAnswer> PathLooks::answers_of(quint64 selection, const QStringList& paths)
{
    const auto round = std::make_shared<Round>(selection, paths);
    std::unique_lock lock(mutex_);
    if (!is_over(*round)) {
        round_ = round;
        start(*round);
    }
    for (auto last_answer = Clock::now(); !is_over(*round) && round->missing != 0;) {
        const std::size_t missing = round->missing;
        changed_.wait_for(lock, step());
        note_silent_folders(*round);
        if (round->missing != missing)
            last_answer = Clock::now();
        if (!go_on(*round, Clock::now() - last_answer))
            break;
    }
    round->is_closed = true;
    if (round_ == round)
        round_ = nullptr;
    // A thread that never comes back keeps the round.
    round->queue.clear();
    return std::move(round->answers);
}

void PathLooks::start(Round& round)
{
    // Half of what is left, so that silent paths leave threads to later selections.
    const std::size_t threads = (most_threads - workers_.size() + 1) / 2;
    round.most_workers = workers_.size() + threads;
    last_answers_.clear();
    // As many ranges as there may be threads.
    round.queue.share_out(threads);
    note_silent_folders(round);
    add_workers(round, first_threads());
}

void PathLooks::add_workers(const Round& round, std::size_t number)
{
    const bool asks_put_off = round.queue.waiting_ranges() == 0 && round.queue.asks_put_off();
    const std::size_t work = asks_put_off ? round.queue.put_off() : round.queue.waiting_ranges();
    const std::size_t most = asks_put_off ? most_for_put_off : round.most_workers;
    const std::size_t possible = most - std::min(most, workers_.size());
    for (number = std::min({number, possible, work}); number != 0; --number)
        start_worker();
}

void PathLooks::start_worker()
{
    const auto worker = workers_.emplace(workers_.end());
    try {
        std::thread([self = shared_from_this(), worker] { self->work(worker); }).detach();
    } catch (const std::exception& error) {
        qDebug() << "No thread to look at paths:" << error.what();
        workers_.erase(worker);
    }
}

/// The round is not at its end after a while: hands on what its threads have yet to ask, to more threads than before.
/// False when no answer can be expected any more.
bool PathLooks::go_on(Round& round, Clock::duration without_answer)
{
    round.queue.release_put_off(without_answer > patience_ / 4);
    std::size_t busy = 0;
    bool is_expected = false;
    for (Worker& worker : workers_) {
        const bool is_asked =
            std::ranges::any_of(worker.askers, [&](const Asker& asker) { return asker.round.get() == &round; });
        busy += is_asked ? 1 : 0;
        // A thread without a path has yet to begin.
        is_expected |= worker.askers.empty() || (is_asked && Clock::now() < worker.deadline);
        if (worker.round.get() == &round)
            round.queue.hand_back(worker.rest);
    }
    const std::size_t before = workers_.size();
    add_workers(round, std::max<std::size_t>(busy, 1));
    const bool will_ask_put_off =
        round.queue.put_off() != 0 && !round.queue.asks_put_off() && before < most_for_put_off;
    return without_answer < step() || is_expected || workers_.size() != before || will_ask_put_off;
}

void PathLooks::note_silent_folders(Round& round) const
{
    std::vector<QString> silent;
    for (const auto before = Clock::now() - step(); const Worker& worker : workers_)
        if (!worker.askers.empty() && worker.asked_at < before && !is_slow(folder_of(worker.path)))
            silent.push_back(worker.path);
    round.queue.set_silent(silent);
}

/// It keeps threads waiting, but answers.
bool PathLooks::is_slow(QStringView folder) const
{
    const auto answer = last_answers_.find(folder.toString());
    return answer != last_answers_.end() && answer->second > Clock::now() - patience_ / 4;
}

void PathLooks::work(Workers::iterator worker)
{
    std::unique_lock lock(mutex_);
    while (take_next(*worker)) {
        lock.unlock();
        const Attributes attributes = look_at(worker->path);
        lock.lock();
        tell(*worker, attributes);
    }
    workers_.erase(worker);
}

bool PathLooks::take_next(Worker& worker)
{
    if (!worker.round || is_over(*worker.round)) {
        worker.round = round_;
        worker.rest = {};
    }
    if (!worker.round || is_over(*worker.round))
        return false;
    PathQueue& queue = worker.round->queue;
    const auto is_for_later = [&](std::size_t index) {
        return shares_look({worker.round, index}) || queue.puts_off(index);
    };
    auto index = queue.next(worker.rest);
    while (index && is_for_later(*index))
        index = queue.next(worker.rest);
    if (index)
        return ask(worker, *index);
    while (workers_.size() <= most_for_put_off) {
        const auto put_off = queue.next_put_off();
        if (!put_off)
            return false;
        if (!shares_look({worker.round, *put_off}))
            return ask(worker, *put_off);
    }
    return false;
}

bool PathLooks::ask(Worker& worker, std::size_t index)
{
    worker.path = worker.round->queue.path(index);
    worker.askers.push_back({worker.round, index});
    worker.asked_at = Clock::now();
    worker.deadline = worker.asked_at + patience_;
    return true;
}

bool PathLooks::shares_look(const Asker& asker)
{
    const QString& path = asker.round->queue.path(asker.index);
    const auto asking = std::ranges::find_if(
        workers_, [&](const Worker& worker) { return !worker.askers.empty() && worker.path == path; });
    if (asking == workers_.end())
        return false;
    // A path that never answers is not to gather those who have gone.
    std::erase_if(asking->askers, [](const Asker& other) { return other.round->is_closed; });
    asking->askers.push_back(asker);
    asking->deadline = Clock::now() + patience_;
    return true;
}

PathLooks::Attributes PathLooks::look_at(const QString& path) const
{
    try {
        return look_(path);
    } catch (const std::exception& error) {
        qDebug() << "A path can't be looked at:" << error.what();
        return {};
    }
}

void PathLooks::tell(Worker& worker, const Attributes& attributes)
{
    last_answers_[folder_of(worker.path).toString()] = Clock::now();
    for (const auto& [round, index] : worker.askers) {
        if (round->is_closed)
            continue;
        round->answers[index] = {true, attributes};
        if (--round->missing == 0)
            changed_.notify_all();
    }
    worker.askers.clear();
}
