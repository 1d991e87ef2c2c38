#pragma once

#include <QObject>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>

/// Work on a thread of its own, which a disk may hold up for ever. Main thread only, but for the work.
class BackgroundJob final : public QObject
{
    Q_OBJECT

public:
    /// Starts. The work owns all that it uses, for it may outlast this object, and throws nothing. Where no thread
    /// can be had it is done before this returns.
    explicit BackgroundJob(const std::function<void()>& work);
    /// Waits for nobody.
    ~BackgroundJob() override;

    bool is_done() const;

    /// Blocks until the work is done or the patience is at its end; true when it is done.
    bool wait(std::chrono::milliseconds patience) const;

signals:
    /// Comes later than the constructor.
    void done();

    void ended(QPrivateSignal);

private:
    struct Run;

    std::shared_ptr<Run> run_; ///< shared with its thread
};

/// A job that comes to a value. As BackgroundJob, but what the work throws is kept as well.
template <typename Value>
class BackgroundValue
{
public:
    explicit BackgroundValue(std::function<Value()> work) : BackgroundValue(std::make_shared<Task>(std::move(work)))
    {}

    const BackgroundJob& job() const { return job_; }

    /// Once, when the job is done: its value, or what it threw.
    Value take() { return value_.get(); }

private:
    using Task = std::packaged_task<Value()>;

    explicit BackgroundValue(const std::shared_ptr<Task>& task)
        : value_(task->get_future()), job_([task] { (*task)(); })
    {}

    std::future<Value> value_;
    BackgroundJob job_;
};
