#include "ui/lists/show_marks.h"

#include "engine/commands/vellumark_command.h"
#include "engine/items/mv_items_set.h"
#include "store/builtin_command_info.h"
#include "ui/selection_services.h"

#include <algorithm>
#include <chrono>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// A tall screen full of rows takes a quarter of a frame.
constexpr auto first_look = 50us;
/// Of all first looks of one paint. A single item can cost more when an expression runs away; the rows after it are
/// not looked at then.
constexpr auto first_looks = 4ms;
constexpr auto slice = 5ms;
/// More than a screen shows; what was scrolled away asks again when it comes back.
constexpr std::size_t most_waiting = 256;

}

ShowMarks::ShowMarks(SelectionServices& selection, std::function<void(const Command&)> decided)
    : selection_(selection), decided_(std::move(decided))
{
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { work(); });
}

bool ShowMarks::is_shown(const Command& command)
{
    const std::shared_ptr<const MVItemsSet> selection = selection_.selected_items();
    if (selection->items().empty())
        return true;
    if (const auto* vellumark = dynamic_cast<const VellumarkCommand*>(command.get()))
        return vellumark->show_rule_holds(*selection) && filters_pass(command, *vellumark);
    return builtin_show_test(command->type(), *selection);
}

bool ShowMarks::filters_pass(const Command& command, const VellumarkCommand& vellumark)
{
    const auto [entry, is_new] = searches_.try_emplace(command);
    Search& search = entry->second;
    if (is_new)
        take_first_look(search, vellumark);
    if (!search.known)
        wait_for(command);
    return search.shown;
}

void ShowMarks::take_first_look(Search& search, const VellumarkCommand& command)
{
    if (spent_ >= first_looks)
        return;
    if (spent_ == spent_.zero())
        QTimer::singleShot(0, &timer_, [this] { spent_ = spent_.zero(); });
    const auto start = Clock::now();
    go_on(search, command, start + first_look);
    // Never nothing, so that one paint asks for one timer.
    spent_ += std::max<Clock::duration>(Clock::now() - start, 1ns);
}

void ShowMarks::go_on(Search& search, const VellumarkCommand& command, Clock::time_point until) const
{
    const std::shared_ptr<const MVItemsSet> selection = selection_.selected_items();
    const auto& items = selection->items();
    while (search.next_item < items.size()) {
        if (command.passes_filter(*items[search.next_item++])) {
            search.known = true;
            return;
        }
        if (Clock::now() >= until)
            return;
    }
    search.known = true;
    search.shown = false;
}

void ShowMarks::wait_for(const Command& command)
{
    if (!waiting_.empty() && waiting_.back() == command)
        return;
    if (waiting_.size() == most_waiting)
        waiting_.erase(waiting_.begin(), waiting_.begin() + most_waiting / 2);
    waiting_.push_back(command);
    timer_.start(0);
}

void ShowMarks::work()
{
    const auto until = Clock::now() + slice;
    while (!waiting_.empty() && Clock::now() < until) {
        const Command command = waiting_.back();
        Search& search = searches_[command];
        const bool was_known = search.known;
        if (!was_known)
            go_on(search, dynamic_cast<const VellumarkCommand&>(*command), until);
        if (!search.known)
            break;
        waiting_.pop_back();
        if (!was_known && !search.shown)
            decided_(command);
    }
    if (waiting_.empty())
        timer_.stop();
}

void ShowMarks::forget()
{
    searches_.clear();
    waiting_.clear();
    timer_.stop();
}

void ShowMarks::forget(const Command& command)
{
    searches_.erase(command);
}
