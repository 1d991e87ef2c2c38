#pragma once

#include "engine/runner/vellumark_runner.h"

#include <mutex>
#include <string>
#include <string_view>
#include <utility>

/// The newest of what a run's threads tell of it, thousands of times a second, for somebody who looks now and then.
/// Safe from any thread.
class RunProgress
{
public:
    /// Dropped when `run` has been cancelled: the next one may have begun to matter already.
    void set_status(VellumarkRunner& run, std::u16string_view text) { set(run, status_, text); }

    void set_item(VellumarkRunner& run, std::u16string_view text) { set(run, item_, text); }

    /// Makes another run the one that counts: no report comes between `request` and the clearing of the old ones.
    template <typename Request>
    void restart(const Request& request)
    {
        const std::lock_guard lock(mutex_);
        status_.clear();
        item_.clear();
        request();
    }

    /// Status line and item; empty while none was told.
    std::pair<std::u16string, std::u16string> newest() const
    {
        const std::lock_guard lock(mutex_);
        return {status_, item_};
    }

private:
    void set(VellumarkRunner& run, std::u16string& line, std::u16string_view text)
    {
        const std::lock_guard lock(mutex_);
        if (!run.is_cancelled())
            line = text;
    }

    mutable std::mutex mutex_;
    std::u16string status_, item_;
};
