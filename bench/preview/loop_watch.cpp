#include "preview/loop_watch.h"

#include <QCoreApplication>

#include <algorithm>
#include <ctime>

namespace {

qint64 thread_cpu_ns()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

double ms(qint64 ns)
{
    return static_cast<double>(ns) / 1e6;
}

}

LoopWatch::LoopWatch()
{
    QObject::connect(&timer_, &QTimer::timeout, [this] { tick(); });
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.start(1);
    restart();
}

void LoopWatch::restart()
{
    longest_ = {};
    wall_.start();
    cpu_at_tick_ = thread_cpu_ns();
}

Block LoopWatch::since_tick() const
{
    return {ms(wall_.nsecsElapsed()), ms(thread_cpu_ns() - cpu_at_tick_)};
}

Block LoopWatch::longest() const
{
    const Block last = since_tick();
    return {std::max(longest_.wall_ms, last.wall_ms), std::max(longest_.cpu_ms, last.cpu_ms)};
}

void LoopWatch::tick()
{
    longest_ = longest();
    wall_.start();
    cpu_at_tick_ = thread_cpu_ns();
}

bool run_until(const std::function<bool()>& done)
{
    QElapsedTimer time;
    time.start();
    while (!done() && time.elapsed() < 60'000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return done();
}
