#include "app/path_looks.h"

#include <QDebug>

#include <algorithm>
#include <deque>
#include <exception>
#include <system_error>
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

QStringView folder_of(const QString& path)
{
    return QStringView(path).left(path.lastIndexOf(u'\\') + 1);
}

}

struct PathLooks::Round {
    quint64 selection = 0;
    QStringList paths;
    std::vector<PathAnswer> answers;
    std::size_t missing = 0; ///< answers
    std::deque<Range> waiting;
    std::deque<std::size_t> put_off;     ///< paths in folders that were silent
    std::vector<QString> silent_folders; ///< those that keep a thread waiting
    bool asks_put_off = false;           ///< all other paths have had their turn
    std::size_t most_workers = 0;        ///< while it lasts, those that earlier paths hold included
    bool is_closed = false;
};

PathLooks::PathLooks(Look look, std::chrono::milliseconds patience) : look_(std::move(look)), patience_(patience) {}

bool PathLooks::is_over(const Round& round) const
{
    return round.is_closed || round.selection != wanted_;
}

std::vector<PathAnswer> PathLooks::answers_of(quint64 selection, const QStringList& paths)
{
    const auto round = std::make_shared<Round>();
    round->selection = selection;
    round->paths = paths;
    round->missing = static_cast<std::size_t>(paths.size());
    round->answers.resize(round->missing);
    std::unique_lock lock(mutex_);
    if (!is_over(*round)) {
        round_ = round;
        share_out(*round);
    }
    for (auto last_answer = Clock::now(); !is_over(*round) && round->missing != 0;) {
        const std::size_t missing = round->missing;
        changed_.wait_for(lock, step());
        note_silent_folders(*round);
        if (round->missing != missing)
            last_answer = Clock::now();
        else if (release_put_off(*round, last_answer); !relieve_silent_workers(*round))
            break;
    }
    round->is_closed = true;
    if (round_ == round)
        round_ = nullptr;
    // A thread that never comes back keeps the round.
    round->waiting.clear();
    round->put_off.clear();
    round->paths.clear();
    return std::move(round->answers);
}

/// As many ranges as there may be threads: though all paths of some keep silent, one of each is asked.
void PathLooks::share_out(Round& round)
{
    // Half of what is left, so that silent paths leave threads to later selections.
    const std::size_t held = workers_.size(), left = most_threads - held;
    const std::size_t threads = (left + 1) / 2;
    round.most_workers = held + threads;
    const std::size_t size = round.missing / std::max<std::size_t>(threads, 1) + 1;
    for (std::size_t begin = 0; begin < round.missing; begin += size)
        round.waiting.push_back({begin, std::min(begin + size, round.missing)});
    note_silent_folders(round);
    add_workers(round, first_threads());
}

void PathLooks::add_workers(const Round& round, std::size_t number)
{
    const bool takes_what_is_put_off = round.waiting.empty() && round.asks_put_off;
    const std::size_t work = takes_what_is_put_off ? round.put_off.size() : round.waiting.size();
    const std::size_t most = takes_what_is_put_off ? most_for_put_off : round.most_workers;
    const std::size_t possible = most - std::min(most, workers_.size());
    for (number = std::min({number, possible, work}); number != 0; --number)
        start_worker();
}

void PathLooks::start_worker()
{
    const auto worker = workers_.emplace(workers_.end());
    try {
        std::thread([self = shared_from_this(), worker] { self->work(worker); }).detach();
    } catch (const std::system_error& error) {
        qDebug() << "No thread to look at paths:" << error.what();
        workers_.erase(worker);
    }
}

/// Hands on what the round's threads have yet to ask, to more threads than before. False when no answer can be
/// expected any more.
bool PathLooks::relieve_silent_workers(Round& round)
{
    const auto now = Clock::now();
    std::size_t busy = 0;
    bool is_expected = false;
    for (Worker& worker : workers_) {
        const auto asks = [&](const Asker& asker) { return asker.round.get() == &round; };
        const bool is_asked = std::ranges::any_of(worker.askers, asks);
        busy += is_asked ? 1 : 0;
        // A thread without a path has yet to begin.
        is_expected |= worker.askers.empty() || (is_asked && now < worker.deadline);
        if (worker.round.get() == &round && worker.rest.begin != worker.rest.end)
            round.waiting.push_back(std::exchange(worker.rest, {}));
    }
    const std::size_t before = workers_.size();
    add_workers(round, std::max<std::size_t>(busy, 1));
    return is_expected || workers_.size() != before || will_ask_put_off(round);
}

void PathLooks::note_silent_folders(Round& round) const
{
    round.silent_folders.clear();
    for (const auto before = Clock::now() - step(); const Worker& worker : workers_)
        if (!worker.askers.empty() && worker.asked_at < before && !is_in_silent_folder(round, worker.path))
            round.silent_folders.push_back(folder_of(worker.path).toString());
}

bool PathLooks::is_in_silent_folder(const Round& round, const QString& path)
{
    return std::ranges::find(round.silent_folders, folder_of(path)) != round.silent_folders.end();
}

bool PathLooks::will_ask_put_off(const Round& round) const
{
    return !round.put_off.empty() && !round.asks_put_off && workers_.size() < most_for_put_off;
}

/// A thread may only have been slow to go on, so that paths whose folder answers again come first, and the others
/// after a while.
void PathLooks::release_put_off(Round& round, Clock::time_point last_answer) const
{
    if (!round.waiting.empty())
        return;
    std::erase_if(round.put_off, [&](std::size_t index) {
        if (is_in_silent_folder(round, round.paths[static_cast<qsizetype>(index)]))
            return false;
        round.waiting.push_back({index, index + 1});
        return true;
    });
    round.asks_put_off |= round.waiting.empty() && Clock::now() - last_answer > patience_ / 4;
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
    for (;;) {
        if (!worker.round || is_over(*worker.round)) {
            worker.round = round_;
            worker.rest = {};
        }
        if (!worker.round || is_over(*worker.round))
            return false;
        const std::optional<std::size_t> index = next_index(worker);
        if (!index)
            return false;
        const QString& path = worker.round->paths[static_cast<qsizetype>(*index)];
        if (shares_look({worker.round, *index}, path))
            continue;
        worker.path = path;
        worker.askers.push_back({worker.round, *index});
        worker.asked_at = Clock::now();
        worker.deadline = worker.asked_at + patience_;
        return true;
    }
}

std::optional<std::size_t> PathLooks::next_index(Worker& worker)
{
    Round& round = *worker.round;
    while (worker.rest.begin != worker.rest.end || !round.waiting.empty()) {
        if (worker.rest.begin == worker.rest.end) {
            worker.rest = round.waiting.front();
            round.waiting.pop_front();
        }
        const std::size_t index = worker.rest.begin++;
        const QString& path = round.paths[static_cast<qsizetype>(index)];
        if (!is_in_silent_folder(round, path))
            return index;
        if (!shares_look({worker.round, index}, path))
            round.put_off.push_back(index);
    }
    if (round.put_off.empty() || !round.asks_put_off || workers_.size() > most_for_put_off)
        return std::nullopt;
    const std::size_t index = round.put_off.front();
    round.put_off.pop_front();
    return index;
}

bool PathLooks::shares_look(const Asker& asker, const QString& path)
{
    const auto asking = std::ranges::find_if(
        workers_, [&](const Worker& worker) { return !worker.askers.empty() && worker.path == path; });
    if (asking == workers_.end())
        return false;
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
    for (const auto& [round, index] : worker.askers) {
        if (round->is_closed)
            continue;
        round->answers[index] = {true, attributes};
        if (--round->missing == 0)
            changed_.notify_all();
    }
    worker.askers.clear();
}
