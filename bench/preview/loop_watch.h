#pragma once

#include "preview/report.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

/// The longest time in which the event loop didn't come to its timers, and the most that its thread worked meanwhile:
/// the first is what a user feels, the second what is left of it on a machine that does nothing else.
class LoopWatch
{
public:
    LoopWatch();

    void restart();
    Block longest() const;

private:
    Block since_tick() const;
    void tick();

    QTimer timer_;
    QElapsedTimer wall_;
    qint64 cpu_at_tick_ = 0;
    Block longest_;
};

/// Runs the event loop until `done`, a minute at the most. False when that was not enough.
bool run_until(const std::function<bool()>& done);
