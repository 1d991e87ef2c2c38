#pragma once

#include "engine/commands/vellumark_command.h"
#include "engine/items/mv_items_set.h"
#include "engine/runner/vellumark_runner.h"
#include "engine/runner/vellumark_watcher.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>

/// A restartable worker that makes the texts of commands for one selection. A new request cancels the run in progress
/// and takes its place, without a new thread; of a burst of requests only the last is run. Requests come from one
/// thread or from the watcher's slot; the selection must not change while a run is in progress.
class VellumarkThread final : public VellumarkRunner
{
public:
    /// No thread starts. `watcher` is not owned.
    VellumarkThread(VellumarkWatcher& watcher, std::shared_ptr<const MVItemsSet> items);
    /// Cancels the run in progress and waits for its end; no text is delivered any more. Not on the worker thread.
    ~VellumarkThread() override;
    VellumarkThread(const VellumarkThread&) = delete;
    VellumarkThread& operator=(const VellumarkThread&) = delete;

    /// Asks for a run on a copy of `command` as it is now. Null only cancels the run in progress. Returns at once.
    /// Throws std::system_error when no thread can be started; nothing runs then.
    void request(const VellumarkCommand* command, std::uint32_t id);

    /// False between a cancel and the start of the next run.
    bool is_running() const;

    /// Whether the selection is left alone until the next request. False while a cancelled run still comes to its
    /// end.
    bool is_idle() const { return state_ == State::Idle; }

    bool is_cancelled() override { return state_ != State::Running; }

    void report_item(std::u16string_view text) override { watcher_.item_report(text); }

    void report_status(std::u16string_view text) override { watcher_.status_report(text); }

private:
    enum class State : std::int32_t {
        Idle, ///< no thread at work; a finished one may still be attached
        Running,
        Restart, ///< the run in progress is to stop; a request waits or was withdrawn
        Stopping
    };

    /// Without the lock meanwhile: the thread may still be telling the watcher that it is idle. No one else starts a
    /// thread then.
    void join_finished(std::unique_lock<std::mutex>& lock);
    void work();
    /// Takes the request that waits. False, and idle, when there is none.
    bool take_request();
    void run();
    /// The request's text; empty after a failure, which the watcher has been told then.
    std::u16string made_text();
    void tell_failure(const std::string& words);
    void deliver(std::u16string text);
    void tell_idle();

    VellumarkWatcher& watcher_;
    const std::shared_ptr<const MVItemsSet> items_;
    mutable std::mutex mutex_; ///< for the hand-over; never held during a run or a call of the watcher
    std::atomic<State> state_ = State::Idle;
    std::thread thread_;
    std::unique_ptr<const VellumarkCommand> working_command_;
    std::unique_ptr<const VellumarkCommand> pending_command_;
    std::uint32_t request_id_ = 0;
    std::uint32_t pending_request_id_ = 0;
};
