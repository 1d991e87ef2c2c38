#include "app/path_queue.h"

#include <algorithm>
#include <utility>

void PathQueue::share_out(std::size_t ranges)
{
    const auto number = static_cast<std::size_t>(paths_.size());
    const std::size_t size = number / std::max<std::size_t>(ranges, 1) + 1;
    for (std::size_t begin = 0; begin < number; begin += size)
        waiting_.push_back({begin, std::min(begin + size, number)});
}

void PathQueue::hand_back(Range& rest)
{
    if (rest.begin != rest.end)
        waiting_.push_back(std::exchange(rest, {}));
}

void PathQueue::clear()
{
    waiting_.clear();
    put_off_.clear();
    paths_.clear();
}

std::optional<std::size_t> PathQueue::next(Range& rest)
{
    if (rest.begin == rest.end) {
        if (waiting_.empty())
            return std::nullopt;
        rest = waiting_.front();
        waiting_.pop_front();
    }
    return rest.begin++;
}

bool PathQueue::puts_off(std::size_t index)
{
    const bool is_silent = is_in_silent_folder(path(index));
    if (is_silent)
        put_off_.push_back(index);
    return is_silent;
}

std::optional<std::size_t> PathQueue::next_put_off()
{
    if (put_off_.empty() || !asks_put_off_)
        return std::nullopt;
    const std::size_t index = put_off_.front();
    put_off_.pop_front();
    return index;
}

void PathQueue::set_silent(const std::vector<QString>& paths)
{
    silent_folders_.clear();
    for (const QString& path : paths)
        if (!is_in_silent_folder(path))
            silent_folders_.push_back(folder_of(path).toString());
}

void PathQueue::release_put_off(bool all)
{
    if (!waiting_.empty())
        return;
    std::erase_if(put_off_, [this](std::size_t index) {
        if (is_in_silent_folder(path(index)))
            return false;
        waiting_.push_back({index, index + 1});
        return true;
    });
    asks_put_off_ |= all && waiting_.empty();
}

bool PathQueue::is_in_silent_folder(const QString& path) const
{
    return std::ranges::find(silent_folders_, folder_of(path)) != silent_folders_.end();
}
