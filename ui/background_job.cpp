#include "ui/background_job.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

struct BackgroundJob::Run {
    void end()
    {
        const std::lock_guard lock(mutex);
        is_done = true;
        has_ended.notify_all();
        if (receiver)
            emit receiver->ended(QPrivateSignal());
    }

    std::mutex mutex;
    std::condition_variable has_ended;
    bool is_done = false;
    BackgroundJob* receiver = nullptr; ///< null once nobody waits any more
};

BackgroundJob::BackgroundJob(const std::function<void()>& work) : run_(std::make_shared<Run>())
{
    run_->receiver = this;
    connect(this, &BackgroundJob::ended, this, &BackgroundJob::done, Qt::QueuedConnection);
    try {
        std::thread([work, run = run_] {
            work();
            run->end();
        }).detach();
    } catch (const std::system_error&) {
        work();
        run_->end();
    }
}

BackgroundJob::~BackgroundJob()
{
    const std::lock_guard lock(run_->mutex);
    run_->receiver = nullptr;
}

bool BackgroundJob::is_done() const
{
    const std::lock_guard lock(run_->mutex);
    return run_->is_done;
}

bool BackgroundJob::wait(std::chrono::milliseconds patience) const
{
    std::unique_lock lock(run_->mutex);
    return run_->has_ended.wait_for(lock, patience, [this] { return run_->is_done; });
}
